#include "app/start/MainProgram.h"

#include "app/start/Engine.h"
#include "app/start/MainWindowStart.h"
#include "platform/Drives.h"

namespace vantrel {

MainProgram::MainProgram(Engine& engine, const MainWindowParts& parts)
    : panes(engine.state, engine.session, engine.table, engine.messages, parts.panes),
      moveToWasteBin_(parts.moveToWasteBin),
      transferServices_{engine.state,    engine.session,
                        panes,           parts.panes,
                        engine.table,    engine.messages,
                        engine.progress, engine.talk,
                        results_,        moveToWasteBin_ ? &moveToWasteBin_ : nullptr},
      transfers_(transferServices_),
      folder_(engine.state, panes, engine.talk, parts.view, parts.tree),
      services_{engine.state, engine.session, panes,      transfers_, engine.messages,
                engine.talk,  parts.panes,    parts.view, folder_,    parts.editTextFile,
                parts.viewer, parts.printer,  results_},
      main(services_), folderTree(services_, main, parts.tree, parts.folders),
      files(services_, main, parts.prompts,
            {parts.folders.subfolders,
             [](const std::string& folder) { return isOnNetwork(folder); }}),
      robots(services_, main, parts.robots, engine.boxes),
      settings(
          {engine.state, engine.session, panes, engine.registry, parts.robots, parts.view, main}),
      lists(transferServices_, parts.listFiles), results(services_, results_, main),
      help(engine.state, engine.programFolder, parts.openDocument),
      shutdown({engine.state, engine.settings, engine.registry, engine.session, engine.messages,
                engine.boxes, parts.shutdown}) {}

void MainProgram::start() {
    startMainWindow(services_, main);
}

} // namespace vantrel
