#include "base/Text.h"
#include "files/ControllerModels.h"
#include "files/TransferTable.h"
#include "platform/Files.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using Names = std::set<std::string>;

constexpr const char* fullTable = "FileTable.tbl";
constexpr const char* shortTable = "FileTable.dat";
constexpr bool download = true;
constexpr bool upload = false;

std::string delivered(const std::string& file) {
    const auto bytes = readFile(tests::dataFolder() + "/" + file);
    EXPECT_TRUE(bytes) << file;
    return bytes ? *bytes : std::string{};
}

/// The table as the program loads it where it finds this file alone.
TransferTable loaded(const std::string& file) {
    const tests::TemporaryFolder folder;
    folder.write(file, delivered(file));
    TransferTable table;
    EXPECT_TRUE(table.load(folder.path())) << file;
    return table;
}

bool isFixed(const std::string& name) {
    return name.find('*') == std::string::npos;
}

struct Delivered {
    const char* name;
    const char* file;
    std::size_t flags;
    std::size_t models; ///< that its flags can name
};

class DeliveredFileTable : public testing::TestWithParam<Delivered> {
  protected:
    TransferTable table_ = loaded(GetParam().file);
};

INSTANTIATE_TEST_SUITE_P(Files, DeliveredFileTable,
                         testing::Values(Delivered{"Full", fullTable, 12, 6},
                                         Delivered{"Short", shortTable, 6, 3}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(DeliveredFileTable, HasAllFlagsInEveryLine) {
    const auto content = delivered(GetParam().file);
    for (const auto line : lines(content)) {
        const auto row = withoutComment(line);
        if (row.empty())
            continue;
        const auto fields = split(row, ',');
        EXPECT_EQ(fields.size(), 1 + GetParam().flags) << line;
        for (std::size_t i = 1; i < fields.size(); ++i)
            EXPECT_TRUE(trimmed(fields[i]) == "0" || trimmed(fields[i]) == "1") << line;
    }
}

TEST_P(DeliveredFileTable, LetsEveryModelReceiveAndSendItsKinds) {
    constexpr std::int16_t asterBit = 1;
    for (const auto& model : controllerModels()) {
        if (model.bit >= 1 << GetParam().models)
            continue;
        for (const char* kind : {"JBI", "JBR", "CND", "DAT", "SYS", "PRM", "LST"}) {
            const auto name = std::string("SOME.") + kind;
            EXPECT_TRUE(table_.isTransferable(name, upload, model.bit)) << model.name << kind;
            const bool isBasic = Names{"JBI", "JBR", "DAT"}.contains(kind);
            EXPECT_EQ(table_.isTransferable(name, download, model.bit),
                      isBasic || model.bit != asterBit)
                << model.name << kind;
        }
        EXPECT_FALSE(table_.isTransferable("README.TXT", download, model.bit));
    }
}

TEST_P(DeliveredFileTable, HasItsFixedNamesBeforeTheKinds) {
    const auto& rows = table_.rows();
    EXPECT_TRUE(std::ranges::is_partitioned(rows, isFixed, &TransferRow::Name));
    EXPECT_TRUE(isFixed(rows.front().Name) && !isFixed(rows.back().Name));
}

TEST_P(DeliveredFileTable, HasEachNameOnce) {
    Names names;
    for (const auto& row : table_.rows())
        EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
}

TEST_P(DeliveredFileTable, NeverSendsTheFileThatDescribesTheController) {
    for (const auto& model : controllerModels())
        EXPECT_FALSE(table_.isTransferable("SYSTEM.SYS", download, model.bit)) << model.name;
}

TEST(DeliveredFileTables, SayTheSameWhereBothSaySomething) {
    constexpr int known = 1 | 2 | 4; // the models of the short one
    const auto full = loaded(fullTable);
    const auto brief = loaded(shortTable);
    ASSERT_EQ(full.rows().size(), brief.rows().size());
    for (std::size_t i = 0; i < full.rows().size(); ++i) {
        EXPECT_EQ(full.rows()[i].Name, brief.rows()[i].Name);
        EXPECT_EQ(full.rows()[i].uploadMask & known, brief.rows()[i].uploadMask);
        EXPECT_EQ(full.rows()[i].downloadMask & known, brief.rows()[i].downloadMask);
    }
}

/// A controller of the trial, as "simulator.ini" describes it.
struct TrialController {
    std::string model;
    std::string folder;
    Names hidden;
};

std::vector<TrialController> trialControllers() {
    std::vector<TrialController> controllers;
    const auto content = delivered("simulator.ini");
    for (const auto line : lines(content)) {
        const auto equals = line.find('=');
        const auto key = line.substr(0, equals);
        const std::string value(equals == line.npos ? "" : line.substr(equals + 1));
        if (line.starts_with("[Controller"))
            controllers.emplace_back();
        else if (key == "Model")
            controllers.back().model = value;
        else if (key == "Folder")
            controllers.back().folder = value;
        else if (key == "HiddenFiles")
            for (const auto name : split(value, ','))
                controllers.back().hidden.emplace(name);
    }
    EXPECT_THAT(controllers, testing::SizeIs(testing::Ge(3U)));
    return controllers;
}

std::int16_t bitOf(const std::string& model) {
    const auto found = std::ranges::find(controllerModels(), model, &ControllerModel::name);
    EXPECT_NE(found, controllerModels().end()) << model;
    return found == controllerModels().end() ? std::int16_t{0} : found->bit;
}

// The pane adds the fixed names to what the directory names, so one that both have shows twice,
// and one that the controller does not have cannot be received.
TEST(DeliveredFileTables, OfferWhatTheTrialsControllersHaveButDoNotList) {
    const auto table = loaded(fullTable);
    for (const auto& controller : trialControllers()) {
        const auto bit = bitOf(controller.model);
        Names offered;
        for (const auto& row : table.rows())
            if (isFixed(row.Name) && (row.uploadMask & bit) != 0)
                offered.insert(row.Name);
        EXPECT_EQ(offered, controller.hidden) << controller.folder;
        for (const auto& name : offered)
            EXPECT_TRUE(
                isRegularFile(tests::dataFolder() + "/samples/" + controller.folder + "/" + name))
                << controller.folder << name;
    }
}

TEST(DeliveredFileTables, HaveNoFixedNameThatATrialsControllerLists) {
    const auto table = loaded(fullTable);
    for (const auto& controller : trialControllers())
        for (const auto& row : table.rows()) {
            const bool isKept = isRegularFile(tests::dataFolder() + "/samples/" +
                                              controller.folder + "/" + row.Name);
            EXPECT_TRUE(!isFixed(row.Name) || !isKept || controller.hidden.contains(row.Name))
                << controller.folder << row.Name;
        }
}

} // namespace
} // namespace vantrel
