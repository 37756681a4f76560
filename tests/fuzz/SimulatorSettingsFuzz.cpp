#include "FuzzInput.h"
#include "simulator/Script.h"
#include "simulator/SimulatorSettings.h"

using namespace vantrel;

VANTREL_FUZZ_TARGET(input) {
    for (const auto& section : simulator::parseIni(input.file()))
        section.value("Folder");

    const auto settings = simulator::parseSettings(input.file(), "/opt/vantrel");
    for (const auto& controller : settings.controllers)
        fuzz::require(controller.folder.starts_with('/'), "a controller's folder is absolute");
    settings.find(simulator::EthernetLine{"192.168.0.11"});

    simulator::Script script;
    for (const auto& row : settings.scriptRows)
        script.addRow(row);
    const auto delay = script.next(simulator::Function::BscDownLoad).delay;
    fuzz::require(delay.count() >= 0 && delay <= simulator::Script::longestDelay,
                  "a delay stays within its bounds");
}
