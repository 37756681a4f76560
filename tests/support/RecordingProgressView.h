#pragma once

#include "link/ProgressPanel.h"

#include <functional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// Remembers what the progress window showed.
class RecordingProgressView : public ProgressView {
  public:
    struct Picture {
        bool visible;
        std::string title;
        std::string message;
        std::string waitingFor;
        bool cancelButton;
        bool bar;
        int item;
        int count;
        std::string pace;
    };

    void refresh(const ProgressPanel& panel) override {
        pictures.push_back({panel.isVisible(), panel.title(), panel.message(), panel.waitingFor(),
                            panel.cancelButtonShown(), panel.barShown(), panel.item(),
                            panel.count(), panel.pace()});
    }
    void yield() override {
        ++yields;
        if (onYield)
            onYield(yields);
    }
    void unload() override { ++unloads; }

    /// The different messages that were to be seen, in order.
    std::vector<std::string> messages() const { return seen(&Picture::message); }
    /// The same of the second label.
    std::vector<std::string> waits() const { return seen(&Picture::waitingFor); }

    std::vector<Picture> pictures;
    int yields = 0;
    int unloads = 0;
    std::function<void(int yield)> onYield; ///< what the operator does at yield 1, 2, ...

  private:
    std::vector<std::string> seen(std::string Picture::*text) const {
        std::vector<std::string> texts;
        for (const auto& picture : pictures)
            if (picture.visible && (texts.empty() || texts.back() != picture.*text))
                texts.push_back(picture.*text);
        return texts;
    }
};

} // namespace vantrel::tests
