#include "lang/FormCaptions.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <algorithm>
#include <iterator>

namespace vantrel {
namespace {

struct DesignedCaption {
    std::int32_t number;
    std::string_view text;
};

constexpr DesignedCaption designedCaptions[] = {
    {message::settingsTitle, "設定"},
    {message::settingsRobotPage, "ロボット登録"},
    {message::settingsCommunicationPage, "通信"},
    {message::settingsOptionsPage, "動作"},
    {message::registeredRobots, "登録リスト"},
    {message::insertAfter, "後挿入"},
    {message::insertBefore, "前挿入"},
    {message::deleteRobot, "削除"},
    {message::selectedRobot, "選択しているﾛﾎﾞｯﾄ"},
    {message::settingsRobotName, "ﾛﾎﾞｯﾄ名"},
    {message::settingsIPAddress, "IPｱﾄﾞﾚｽ"},
    {message::initialFolder, "初期ﾃﾞｨﾚｸﾄﾘ"},
    {message::portSettings, "通信ポートの設定"},
    {message::port, "ポート"},
    {message::baudRate, "通信速度"},
    {message::parity, "パリティ"},
    {message::dataLength, "データ長"},
    {message::stopBits, "ストップビット"},
    {message::controllerSettings, "コントローラの設定"},
    {message::syncRobotFolder, "ﾛﾎﾞｯﾄの選択とPCﾃﾞｨﾚｸﾄﾘを同期表示させる"},
    {message::receiveRelatedJobs, "関連ジョブとして受信する(&J)"},
    {message::showJobHeader, "ジョブヘッダも表示／印刷する(&H)"},
    {message::keepNoSettings, "今回の設定値を保存しない(&I)"},
    {message::restoreDefaults, "初期値に戻す"},
    {message::applySettings, "更新"},
    {message::ok, "OK"},
    {message::cancel, "ｷｬﾝｾﾙ"},
};

} // namespace

std::string formCaption(const MessageTable& messages, std::int32_t number,
                        std::string_view designed) {
    std::string text = messages.getMessage(number);
    return text.empty() ? std::string(designed) : text;
}

std::string formCaption(const MessageTable& messages, std::int32_t number) {
    const auto* const found = std::ranges::find(designedCaptions, number, &DesignedCaption::number);
    return formCaption(messages, number,
                       found == std::end(designedCaptions) ? std::string_view() : found->text);
}

} // namespace vantrel
