#pragma once

namespace vantrel {

class MainCommands;
struct MainServices;

/// The main window's start, before its first paint: captions, place, mode, path, PC folder, views.
/// Leaves the PC pane active.
void startMainWindow(const MainServices& with, MainCommands& commands);

} // namespace vantrel
