#include "app/window/AnswerCaptions.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <cstddef>

namespace vantrel {
namespace {

struct Caption {
    std::int32_t number;
    const char* designed;
};

/// By the answers' numbers.
constexpr Caption captions[] = {{message::resource::yes, "はい(&Y)"},
                                {message::resource::no, "いいえ(&N)"},
                                {message::resource::all, "すべて(&A)"},
                                {message::resource::cancel, "ｷｬﾝｾﾙ(&C)"}};

} // namespace

std::string answerCaption(const MessageTable& messages, Answer answer) {
    const Caption& caption = captions[static_cast<std::size_t>(answer)];
    const std::string text = messages.resourceMessage(caption.number);
    return text.empty() ? caption.designed : text;
}

} // namespace vantrel
