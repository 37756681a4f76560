# The dialogs' sources, relative to ui/.
set(DIALOG_SOURCES
    dialogs/AnswerCaptions.cpp
    dialogs/CaptionButton.cpp
    dialogs/PlainCaption.cpp
    dialogs/CentredPosition.cpp
    dialogs/DialogKeys.cpp
    dialogs/DialogParent.cpp
    dialogs/DialogSize.cpp
    dialogs/FileNameList.cpp
    dialogs/FolderChoicePanel.cpp
    dialogs/FrmMessage.cpp
    dialogs/IconSet.cpp
    dialogs/LanguageDraft.cpp
    dialogs/ListFileDraft.cpp
    dialogs/SettingOptionPage.cpp
    dialogs/SettingPortPage.cpp
    dialogs/SettingRobotPage.cpp
    dialogs/VersionText.cpp
    dialogs/WindowFont.cpp
    dialogs/WrappedText.cpp
    dialogs/WxMessageBoxes.cpp
    dialogs/frmDumy.cpp
    dialogs/frmLanguage.cpp
    dialogs/frmListFile.cpp
    dialogs/frmMsgStat.cpp
    dialogs/frmMsgYesNo.cpp
    dialogs/frmSetting.cpp
    dialogs/frmVers.cpp)

# The version stands in one place, the project's own line in the top CMake file.
set_source_files_properties(dialogs/VersionText.cpp PROPERTIES COMPILE_DEFINITIONS
    "VANTREL_VERSION_MAJOR=${PROJECT_VERSION_MAJOR};VANTREL_VERSION_MINOR=${PROJECT_VERSION_MINOR};VANTREL_VERSION_REVISION=${PROJECT_VERSION_PATCH}")
