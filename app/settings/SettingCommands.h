#pragma once

namespace vantrel {

class MainCommands;
class MainWindowView;
class Panes;
class RobotBox;
class RobotRegistry;
class SettingDraft;
class Snappy;
struct ApplicationState;
struct RobotRecord;
struct SettingValues;

/// What applied settings reach; everything is borrowed and outlives it.
struct SettingServices {
    ApplicationState& state;
    Snappy& session;
    Panes& panes;
    RobotRegistry& registry;
    RobotBox& box;
    MainWindowView& view;
    MainCommands& main;
};

/// What the settings dialog changes in the program. Nothing is written to a disk and no connection
/// is made.
class SettingCommands {
  public:
    explicit SettingCommands(const SettingServices& services) : with_(services) {}

    /// OK or apply, on a draft without a fault: its values become the program's, then the
    /// session's; a controller pane that now belongs to another machine is emptied.
    void apply(SettingDraft& draft);
    /// Colour and label for the robot in force, to be written with the registry.
    void takeMark(const RobotRecord& marked);
    /// After the dialog was closed, whichever way: everything that shows a setting.
    void showSettings();
    /// After another language: every text of the main window, with the mode as it is.
    void recaption();

  private:
    void takeOptions(const SettingValues& values);
    void takeRobots(SettingValues&& values);
    void rebuildPanes();

    SettingServices with_;
};

} // namespace vantrel
