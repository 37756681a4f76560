#pragma once

#include "base/ApplicationState.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "support/ProjectFiles.h"
#include "support/Windows.h"
#include "ui/look/SystemLook.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// A dialog's surroundings in one of the delivered languages, with that language's own font.
class DialogTest : public testing::Test {
  public:
    explicit DialogTest(const std::string& language = "English") : language_(language) {
        const auto read = LanguageFiles(dataFolder()).readInto(language, messages);
        EXPECT_TRUE(bool(read)) << language;
        const bool japanese = language == "Japanese";
        state.LanguageName = language;
        state.FontName = japanese ? "ＭＳ Ｐゴシック" : "MS Sans Serif";
        state.FontBold = !japanese;
        state.FontSize = japanese ? 9 : 8;
    }

    void TearDown() override { runEvents(); }

    /// In the name of a picture.
    const std::string& language() const { return language_; }

    ApplicationState state;
    MessageTable messages;

  private:
    std::string language_;
};

/// The same in each language that is delivered with its own wording.
class DialogInLanguage : public DialogTest, public testing::WithParamInterface<const char*> {
  public:
    DialogInLanguage() : DialogTest(GetParam()) {}
};

/// The buttons stand in one row in the order of the system's own boxes, and Tab follows it; they
/// are given with the one that goes on first.
inline void expectButtonOrder(wxWindow& dialog, const std::vector<std::string>& names) {
    const auto& siblings = dialog.GetChildren();
    for (std::size_t index = 1; index < names.size(); ++index) {
        auto* left = &control<wxButton>(dialog, names[index - 1]);
        auto* right = &control<wxButton>(dialog, names[index]);
        if (goesOnAtTheRight())
            std::swap(left, right);
        EXPECT_GT(right->GetPosition().x, left->GetRect().GetRight()) << names[index];
        EXPECT_EQ(right->GetPosition().y, left->GetPosition().y) << names[index];
        EXPECT_GT(siblings.IndexOf(right), siblings.IndexOf(left)) << names[index];
    }
}

inline constexpr auto languageName = [](const auto& info) { return std::string(info.param); };
inline const auto bothLanguages = testing::Values("English", "Japanese");

} // namespace vantrel::tests
