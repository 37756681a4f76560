#pragma once

#include <cstdint>

namespace vantrel::message {

// Numbers of the texts in the language files, named by use. Where a text is joined to a name, a
// number or a reason, the blank between them belongs to the text. Resource numbers are looked up
// through MessageTable::resourceMessage, which adds 500; the session's own codes are looked up
// there too. A new text takes a number from 6000 on, which is in no code's way.

inline constexpr std::int32_t title = 0;
inline constexpr std::int32_t askReadController = 1;
inline constexpr std::int32_t controllerNotRead = 2;
inline constexpr std::int32_t languageFileMissing = 3; ///< with the file's name inserted
inline constexpr std::int32_t transferFailed = 5;      ///< then the function that failed
inline constexpr std::int32_t noSuchFile = 6;
inline constexpr std::int32_t transferTitle = 7;
inline constexpr std::int32_t kindRefused = 8;            ///< after [name]
inline constexpr std::int32_t deleteFailed = 9;           ///< then the function that failed
inline constexpr std::int32_t askDeleteOnPC = 10;         ///< with the name
inline constexpr std::int32_t askDeleteOnController = 11; ///< with the name and the robot's
inline constexpr std::int32_t folderNotOpened = 12;       ///< then [folder]
inline constexpr std::int32_t askExit = 13;
inline constexpr std::int32_t countPC = 14;         ///< then the count, then `countEnd`
inline constexpr std::int32_t countController = 15; ///< then the count, then `countEnd`
inline constexpr std::int32_t countEnd = 16;
inline constexpr std::int32_t askPrint = 17;     ///< then [name]
inline constexpr std::int32_t viewerFailed = 18; ///< then [name]
inline constexpr std::int32_t saveJobsTitle = 19;
inline constexpr std::int32_t loadJobsTitle = 20;
inline constexpr std::int32_t saveVariablesTitle = 21;
inline constexpr std::int32_t loadVariablesTitle = 22;
inline constexpr std::int32_t jobListField = 23;
inline constexpr std::int32_t variableListField = 24;
inline constexpr std::int32_t versionHeading = 25;
inline constexpr std::int32_t listIndex = 26;          ///< then " ( " index " )"
inline constexpr std::int32_t notDeletedFromPC = 27;   ///< after [name]
inline constexpr std::int32_t originalNotDeleted = 28; ///< after [name]
inline constexpr std::int32_t registryNotRead = 33;    ///< then [file name]
inline constexpr std::int32_t addressUnset = 34;
inline constexpr std::int32_t jobFileHead = 38; ///< then [name] and `jobFileMissing`
inline constexpr std::int32_t jobFileMissing = 39;
inline constexpr std::int32_t libraryUnusable = 40; ///< then the library's path
inline constexpr std::int32_t simulationNotice = 41;
inline constexpr std::int32_t controllerNameRefused = 42; ///< after [name]
inline constexpr std::int32_t startFailed = 43;           ///< then the reason
inline constexpr std::int32_t nameNotExpressible = 44;    ///< after [name]
inline constexpr std::int32_t listFileHint = 45;
inline constexpr std::int32_t registryNotWritten = 46;   ///< then the reason
inline constexpr std::int32_t folderPassedOver = 47;     ///< after [name]
inline constexpr std::int32_t robotFolderNotListed = 48; ///< after [robot's name]
inline constexpr std::int32_t localEntriesSkipped = 49;  ///< with the number inserted
inline constexpr std::int32_t waitingForController = 50;
inline constexpr std::int32_t progressItem = 51; ///< then the position, `progressOf`, the number
inline constexpr std::int32_t progressOf = 52;
inline constexpr std::int32_t listFileNotRead = 53;    ///< then [file name] or the reason
inline constexpr std::int32_t listFileNotWritten = 54; ///< then [file name] or the reason
inline constexpr std::int32_t folderGone = 55;         ///< after [folder]
inline constexpr std::int32_t localJobPassedOver = 56; ///< after [name]
inline constexpr std::int32_t nothingToPrint = 57;
inline constexpr std::int32_t printFailed = 58;             ///< then [name]
inline constexpr std::int32_t editorNotStarted = 59;        ///< after [file name]
inline constexpr std::int32_t libraryFunctionsMissing = 60; ///< then the names
inline constexpr std::int32_t oldFileKept = 61;             ///< after [name], then [other name]
inline constexpr std::int32_t nameIsAmbiguous = 62;         ///< after [name]
inline constexpr std::int32_t partialFileKept = 63;         ///< after [name]
inline constexpr std::int32_t askReplaceValues = 394;       ///< then [file name]
inline constexpr std::int32_t listFileEmpty = 64;           ///< then [file name]
inline constexpr std::int32_t notReplaced = 65;             ///< then the names of deleted jobs
inline constexpr std::int32_t storedUnderOtherName = 66;    ///< after [name] > [other name]
inline constexpr std::int32_t sourceChanged = 67;           ///< after [name]
inline constexpr std::int32_t sentNotShown = 68;            ///< then the names
inline constexpr std::int32_t sentNotKnown = 69;            ///< then the names
inline constexpr std::int32_t furtherNames = 70;            ///< with the number inserted
inline constexpr std::int32_t askLoseRobots = 85; ///< after `registryNotWritten` and its reason

// Why the system refused a file.
inline constexpr std::int32_t reasonMissing = 86;
inline constexpr std::int32_t reasonDenied = 87;
inline constexpr std::int32_t reasonFull = 88;
inline constexpr std::int32_t reasonProtected = 89;
inline constexpr std::int32_t reasonInUse = 90;
inline constexpr std::int32_t reasonNoFile = 91;
inline constexpr std::int32_t reasonNoText = 92; ///< then [robot's name]
inline constexpr std::int32_t reasonEmpty = 383;

// Why the file in the library's place cannot be loaded.
inline constexpr std::int32_t reasonNoLibrary = 395;
inline constexpr std::int32_t reasonOtherProcessor = 396;
inline constexpr std::int32_t reasonNarrowLibrary = 397;
inline constexpr std::int32_t reasonWideLibrary = 398;
inline constexpr std::int32_t reasonCutShort = 399;

// Robots of the same name in the registry.
inline constexpr std::int32_t bootNameShared = 380;   ///< then [robot's name] and the address
inline constexpr std::int32_t reasonNameShared = 381; ///< then [robot's name]
inline constexpr std::int32_t filesNotPlaced = 382;   ///< then the files and the reasons

// What the operator is told of a file whose transfer to the PC ended with the program.
inline constexpr std::int32_t transferInterrupted = 75; ///< after [name], then what became of it
inline constexpr std::int32_t oldFileIsBack = 76;
inline constexpr std::int32_t partKeptAs = 77; ///< then [other name]
inline constexpr std::int32_t fileMayBeIncomplete = 78;
inline constexpr std::int32_t oldFileKeptAs = 79; ///< then [other name]
inline constexpr std::int32_t nothingArrived = 80;

inline constexpr std::int32_t readingDirectory = 93; ///< of the controller, in progress

// What a command came to.
inline constexpr std::int32_t resultSent = 400;
inline constexpr std::int32_t resultReceived = 401;
inline constexpr std::int32_t resultMoved = 402;
inline constexpr std::int32_t resultDeleted = 403;
inline constexpr std::int32_t resultSkipped = 404;
inline constexpr std::int32_t resultFailed = 405;
inline constexpr std::int32_t resultNotTried = 406;
inline constexpr std::int32_t resultCancelled = 407;
inline constexpr std::int32_t resultCount = 408;   ///< with the number and one of these
inline constexpr std::int32_t resultJoint = 409;   ///< between two of them
inline constexpr std::int32_t resultKept = 410;    ///< why a file is skipped: the answer was No
inline constexpr std::int32_t askOtherOwner = 423; ///< with the folder's robot and the other one
inline constexpr std::int32_t menuTools = 411;
inline constexpr std::int32_t menuResult = 412;
inline constexpr std::int32_t resultTitle = 413;
inline constexpr std::int32_t resultColumnName = 414;
inline constexpr std::int32_t resultColumnEnd = 415;
inline constexpr std::int32_t resultColumnReason = 416;
inline constexpr std::int32_t resultTryAgain = 417;
inline constexpr std::int32_t resultSave = 418;
inline constexpr std::int32_t resultPrint = 419;
inline constexpr std::int32_t resultClose = 420;
inline constexpr std::int32_t resultNotSaved = 421; ///< then [file] and the reason
inline constexpr std::int32_t resultRowGone = 422;  ///< after [name]

// The test of a robot's connection.
inline constexpr std::int32_t menuTestConnection = 6491;
inline constexpr std::int32_t testColumnStep = 6492;
inline constexpr std::int32_t testLibrary = 6493;
inline constexpr std::int32_t testPlace = 6494;
inline constexpr std::int32_t testLink = 6495;
inline constexpr std::int32_t testAnswer = 6496;
inline constexpr std::int32_t testEnd = 6497;
inline constexpr std::int32_t testAddressRefused = 6498;
inline constexpr std::int32_t testCopy = 6499;
inline constexpr std::int32_t testPortRefused = 6508;

// The selection as a job list file.
inline constexpr std::int32_t menuSaveSelection = 6548;
inline constexpr std::int32_t selectionLeftOut = 6556;     ///< then the names
inline constexpr std::int32_t selectionNotListable = 6557; ///< then the names

// How far a transfer is and how long it may take.
inline constexpr std::int32_t timeBytes = 6549; ///< done, and all with the unit
inline constexpr std::int32_t timeElapsed = 6551;
inline constexpr std::int32_t timeMinutesLeft = 6552;
inline constexpr std::int32_t timeMinuteLeft = 6553;
inline constexpr std::int32_t timeSecondsLeft = 6554;
inline constexpr std::int32_t timeMomentLeft = 6555; ///< fewer than ten seconds

// Above the list files that the list-file dialog offers.
inline constexpr std::int32_t listFilesOffered = 6559;

// Colour and label of a robot.
inline constexpr std::int32_t menuRobotMark = 6509;
inline constexpr std::int32_t markColour = 6510;
inline constexpr std::int32_t markLabel = 6511;
inline constexpr std::int32_t colourNone = 6512;
inline constexpr std::int32_t colourRed = 6513;
inline constexpr std::int32_t colourOrange = 6514;
inline constexpr std::int32_t colourYellow = 6515;
inline constexpr std::int32_t colourGreen = 6516;
inline constexpr std::int32_t colourBlue = 6517;
inline constexpr std::int32_t colourPurple = 6518;
inline constexpr std::int32_t colourGrey = 6519;

// Menus, with their mnemonics.
inline constexpr std::int32_t menuFile = 101;
inline constexpr std::int32_t menuCopy = 102;
inline constexpr std::int32_t menuMove = 103;
inline constexpr std::int32_t menuDelete = 104;
inline constexpr std::int32_t menuSelectAll = 105;
inline constexpr std::int32_t menuDisplayFile = 106;
inline constexpr std::int32_t menuPrint = 107;
inline constexpr std::int32_t menuExit = 108;
inline constexpr std::int32_t menuView = 109;
inline constexpr std::int32_t menuLargeIcons = 110;
inline constexpr std::int32_t menuSmallIcons = 111;
inline constexpr std::int32_t menuList = 112;
inline constexpr std::int32_t menuDetails = 113;
inline constexpr std::int32_t menuSort = 114;
inline constexpr std::int32_t menuByName = 115;
inline constexpr std::int32_t menuBySize = 116;
inline constexpr std::int32_t menuByDate = 117;
inline constexpr std::int32_t menuRefresh = 118;
inline constexpr std::int32_t menuOptions = 119;
inline constexpr std::int32_t menuSettings = 120;
inline constexpr std::int32_t menuSaveJobs = 121;
inline constexpr std::int32_t menuLoadJobs = 122;
inline constexpr std::int32_t menuSaveVariables = 123;
inline constexpr std::int32_t menuLoadVariables = 124;
inline constexpr std::int32_t menuLanguage = 125;
inline constexpr std::int32_t menuHelp = 126;
inline constexpr std::int32_t menuManual = 128;
inline constexpr std::int32_t menuAbout = 129;
inline constexpr std::int32_t menuTransferMode = 130;
inline constexpr std::int32_t menuModeHispeed = 131;
inline constexpr std::int32_t menuModeBsc = 132;

// Tool tips, frames and labels of the main window.
inline constexpr std::int32_t tipCopy = 140;
inline constexpr std::int32_t tipMove = 141;
inline constexpr std::int32_t tipDelete = 142;
inline constexpr std::int32_t tipSelectAll = 143;
inline constexpr std::int32_t tipRefresh = 145;
inline constexpr std::int32_t tipLargeIcons = 146;
inline constexpr std::int32_t tipSmallIcons = 147;
inline constexpr std::int32_t tipList = 148;
inline constexpr std::int32_t tipDetails = 149;
inline constexpr std::int32_t tipDisplayFile = 150;
inline constexpr std::int32_t tipUpFolder = 151;
inline constexpr std::int32_t tipPrint = 152;
inline constexpr std::int32_t framePC = 153;
inline constexpr std::int32_t frameController = 155;
inline constexpr std::int32_t labelFile = 156;
inline constexpr std::int32_t labelFileType = 157;
inline constexpr std::int32_t labelSerialLine = 158;
inline constexpr std::int32_t labelFolder = 159;
inline constexpr std::int32_t modeHispeed = 190; ///< tool tip and part of the title
inline constexpr std::int32_t modeBsc = 191;     ///< tool tip and part of the title
inline constexpr std::int32_t labelIPAddress = 192;
inline constexpr std::int32_t newRobot = 193;
inline constexpr std::int32_t startingUp = 210;
inline constexpr std::int32_t columnName = 211;
inline constexpr std::int32_t columnSize = 212;
inline constexpr std::int32_t columnDate = 213;
inline constexpr std::int32_t tipPCPane = 214;
inline constexpr std::int32_t tipControllerPane = 215;
inline constexpr std::int32_t labelRobot = 230;

// What stands in a pane without rows.
inline constexpr std::int32_t paneNotRead = 436;
inline constexpr std::int32_t paneEmpty = 437;
inline constexpr std::int32_t paneFiltered = 438;

inline constexpr std::int32_t paneNothingFound = 458; ///< no name holds the text of the filter
inline constexpr std::int32_t selectedItems = 456;    ///< with their number and their bytes

// Working in the PC folder, and what goes beyond the other menus.
inline constexpr std::int32_t menuNewFolder = 440;
inline constexpr std::int32_t menuRename = 441;
inline constexpr std::int32_t menuGoToFolder = 442;
inline constexpr std::int32_t menuBack = 443;
inline constexpr std::int32_t menuForward = 444;
inline constexpr std::int32_t menuQuickFilter = 445;
inline constexpr std::int32_t menuOtherPane = 446;
inline constexpr std::int32_t menuViewOnController = 447;
inline constexpr std::int32_t menuLineNumbers = 462;
inline constexpr std::int32_t newFolderName = 448;
inline constexpr std::int32_t newNameOf = 449; ///< with the old one
inline constexpr std::int32_t folderToOpen = 450;
inline constexpr std::int32_t nameUnusable = 451;
inline constexpr std::int32_t nameTaken = 452;
inline constexpr std::int32_t folderNotMade = 453; ///< after [name], then the reason
inline constexpr std::int32_t notRenamed = 454;    ///< after [name], then the reason
inline constexpr std::int32_t toWasteBin = 455;    ///< a choice in the question before a deletion
inline constexpr std::int32_t quickFilterLabel = 457;
inline constexpr std::int32_t resultCopied = 459;
inline constexpr std::int32_t notCopied = 460; ///< after [name], then (reason)
inline constexpr std::int32_t notViewed = 461; ///< after [name], then (reason)
inline constexpr std::int32_t closeQuickFilter = 463;
inline constexpr std::int32_t noSuchFolder = 464;
inline constexpr std::int32_t fetchNotFinished = 465; ///< after [name]
inline constexpr std::int32_t alreadyInFolder = 6560; ///< why a file is skipped

// The settings dialog.
inline constexpr std::int32_t settingsTitle = 300;
inline constexpr std::int32_t settingsRobotPage = 301;
inline constexpr std::int32_t settingsCommunicationPage = 302;
inline constexpr std::int32_t settingsOptionsPage = 303;
inline constexpr std::int32_t registeredRobots = 304;
inline constexpr std::int32_t insertAfter = 305;
inline constexpr std::int32_t insertBefore = 306;
inline constexpr std::int32_t deleteRobot = 307;
inline constexpr std::int32_t selectedRobot = 308;
inline constexpr std::int32_t settingsRobotName = 309;
inline constexpr std::int32_t settingsIPAddress = 310;
inline constexpr std::int32_t initialFolder = 311;
inline constexpr std::int32_t portSettings = 312;
inline constexpr std::int32_t port = 313;
inline constexpr std::int32_t baudRate = 314;
inline constexpr std::int32_t parity = 315;
inline constexpr std::int32_t dataLength = 316;
inline constexpr std::int32_t stopBits = 317;
inline constexpr std::int32_t controllerSettings = 318;
inline constexpr std::int32_t syncRobotFolder = 319;
inline constexpr std::int32_t receiveRelatedJobs = 320;
inline constexpr std::int32_t showJobHeader = 321;
inline constexpr std::int32_t keepNoSettings = 322;
inline constexpr std::int32_t restoreDefaults = 323;
inline constexpr std::int32_t applySettings = 324;

// Buttons that several windows share; none has a mnemonic.
inline constexpr std::int32_t ok = 325;
inline constexpr std::int32_t cancel = 326;

// What the settings dialog's check finds.
inline constexpr std::int32_t robotWithoutName = 330;
inline constexpr std::int32_t robotNameTaken = 331;      ///< after [robot's name]
inline constexpr std::int32_t robotNameRefused = 332;    ///< after [robot's name]
inline constexpr std::int32_t robotAddressRefused = 333; ///< after [robot's name]
inline constexpr std::int32_t robotFolderRefused = 334;  ///< after [robot's name]

// The language dialog.
inline constexpr std::int32_t languageTitle = 340;
inline constexpr std::int32_t ignoreLanguageSelection = 341;
inline constexpr std::int32_t editLanguageFile = 342;
inline constexpr std::int32_t chooseFont = 343;
inline constexpr std::int32_t languageFileNotRead = 344; ///< then [file name] and the reason

// Other windows.
inline constexpr std::int32_t executionMessage = 350; ///< the start message's title
inline constexpr std::int32_t page = 361; ///< then the page, `progressOf`, the number of pages
inline constexpr std::int32_t tipFolderTree = 370;

// The search line of the viewer.
inline constexpr std::int32_t searchText = 430; ///< what a screen reader calls the field
inline constexpr std::int32_t tipSearchNext = 431;
inline constexpr std::int32_t tipSearchPrevious = 432;
inline constexpr std::int32_t searchedInVain = 433;
inline constexpr std::int32_t searchWentToEnd = 434;   ///< on from the start of the text
inline constexpr std::int32_t searchWentToStart = 435; ///< on from its end

// What a question about an existing file tells below its text.
inline constexpr std::int32_t factsOfPCFile = 390; ///< with its size in bytes and its date
inline constexpr std::int32_t controllerLoses = 391;
inline constexpr std::int32_t pcLoses = 392;
inline constexpr std::int32_t allMeans = 393; ///< with the number of items that follow
// A mark in the PC folder that does not tell what became of its file.
inline constexpr std::int32_t markUnusable = 372;       ///< after [name], then [the mark's name]
inline constexpr std::int32_t markOfNoFile = 373;       ///< after [the mark's name]
inline constexpr std::int32_t groupMarkUnusable = 6620; ///< the same

// Who works with a machine that is in use.
inline constexpr std::int32_t userProcess = 662; ///< with its number
inline constexpr std::int32_t userSince = 663;   ///< with a date and time
inline constexpr std::int32_t unknownUser = 664;

namespace resource {
inline constexpr std::int32_t alreadyExists = 2; ///< after a name and a blank
inline constexpr std::int32_t transferring = 4;  ///< then a name, or alone
inline constexpr std::int32_t deleting = 7;      ///< then a name
inline constexpr std::int32_t yes = 30;
inline constexpr std::int32_t no = 31;
inline constexpr std::int32_t all = 32;
inline constexpr std::int32_t cancel = 33;
} // namespace resource

} // namespace vantrel::message
