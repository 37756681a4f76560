#include "app/settings/FolderChoice.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderChoiceTest : public testing::Test {
  protected:
    FolderChoice choice(PathStyle style = PathStyle::Posix) {
        return FolderChoice({[this] { return drives; },
                             [this](const std::string& folder) {
                                 read.push_back(folder);
                                 return folder == "/" ? std::vector<std::string>{"home", "srv"}
                                                      : std::vector<std::string>{"a", "b"};
                             },
                             [this](const std::string& folder) {
                                 listed.push_back(folder);
                                 return std::vector<std::string>{"X.JBI"};
                             },
                             [](const std::string& folder) { return folder.starts_with("/net"); }},
                            PathRules(style));
    }
    static std::string nodes(const FolderTree& tree, const std::vector<FolderTree::Id>& ids) {
        std::string text;
        for (const auto id : ids) {
            const auto& node = tree.node(id);
            text += node.text + (id == tree.selected() ? "*" : "");
            if (!node.children.empty())
                text += "(" + nodes(tree, node.children) + ")";
            text += " ";
        }
        return text;
    }
    static std::string nodes(const FolderChoice& choice) {
        return nodes(choice.tree(), choice.tree().roots());
    }

    std::vector<Drive> drives{{"/", "/"}, {"/media/op/STICK", "STICK"}};
    std::vector<std::string> read;
    std::vector<std::string> listed;
};

TEST_F(FolderChoiceTest, AStoredFolderIsShownInItsTreeWithItsFiles) {
    auto shown = choice();
    shown.show("/home");
    EXPECT_EQ(shown.folder(), "/home");
    EXPECT_EQ(nodes(shown), "/(home*(a b ) srv ) STICK ");
    EXPECT_THAT(shown.files(), ElementsAre("X.JBI"));
    EXPECT_EQ(shown.drive(), 0U);
}

TEST_F(FolderChoiceTest, AFolderThatIsGoneIsShownAllTheSame) {
    auto shown = choice();
    shown.show("/gone/jobs");
    EXPECT_EQ(shown.folder(), "/gone/jobs");
    EXPECT_EQ(shown.tree().node(shown.tree().selected()).path, "/gone/jobs");
}

TEST_F(FolderChoiceTest, AFolderOnANetworkIsNotReadUntilItIsTurnedTo) {
    auto shown = choice();
    shown.show("/net/nas/jobs");
    EXPECT_EQ(shown.folder(), "/net/nas/jobs");
    EXPECT_EQ(nodes(shown), "/(net/nas/jobs* ) ");
    EXPECT_THAT(shown.files(), IsEmpty());
    EXPECT_THAT(read, IsEmpty());
    EXPECT_THAT(listed, IsEmpty());
    shown.choose(shown.tree().selected());
    EXPECT_THAT(listed, ElementsAre("/net/nas/jobs"));
}

TEST_F(FolderChoiceTest, NoFolderIsNoTreeAndReadsNothing) {
    auto shown = choice();
    shown.show("");
    EXPECT_EQ(shown.folder(), "");
    EXPECT_THAT(shown.files(), IsEmpty());
    EXPECT_THAT(read, IsEmpty());
    EXPECT_EQ(shown.drive(), std::nullopt);
}

TEST_F(FolderChoiceTest, ADriveIsItsRoot) {
    auto shown = choice();
    shown.show("/home");
    shown.chooseDrive(1);
    EXPECT_EQ(shown.folder(), "/media/op/STICK");
    EXPECT_EQ(shown.drive(), 1U);
    EXPECT_EQ(listed.back(), "/media/op/STICK");
    shown.chooseDrive(2);
    EXPECT_EQ(shown.folder(), "/media/op/STICK");
}

TEST_F(FolderChoiceTest, ANodeIsChosenAndReadWhenItIsOpened) {
    auto shown = choice();
    shown.show("/home");
    const auto srv = shown.tree().node(shown.tree().roots()[0]).children[1];
    read.clear();
    EXPECT_EQ(shown.open(srv).size(), 2U);
    EXPECT_THAT(read, ElementsAre("/srv"));
    EXPECT_EQ(shown.folder(), "/home") << "opening is no choice";
    shown.choose(srv);
    EXPECT_EQ(shown.folder(), "/srv");
    EXPECT_EQ(listed.back(), "/srv");
    shown.choose(FolderTree::none);
    EXPECT_EQ(shown.folder(), "/srv");
}

TEST_F(FolderChoiceTest, TheDriveOfAWindowsPathIsFoundInAnyLetterCase) {
    drives = {{"C:\\", "C: [SYSTEM]"}, {"D:\\", "D:"}};
    auto shown = choice(PathStyle::Windows);
    shown.show("d:\\jobs");
    EXPECT_EQ(shown.drive(), 1U);
    shown.show("E:\\jobs");
    EXPECT_EQ(shown.drive(), std::nullopt);
}

TEST_F(FolderChoiceTest, AFolderBesideAMediumIsNotOnIt) {
    auto shown = choice();
    shown.show("/media/op/STICKER");
    EXPECT_EQ(shown.drive(), 0U);
}

} // namespace
} // namespace vantrel
