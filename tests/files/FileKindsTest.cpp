#include "files/FileKinds.h"

#include <string>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct KindCase {
    const char* title;
    std::string_view name;
    std::int32_t size;
    std::string_view image;
};

class FileKindOf : public testing::TestWithParam<KindCase> {};

TEST_P(FileKindOf, DecidesTheImage) {
    EXPECT_EQ(imageKey(fileKind(GetParam().name, GetParam().size)), GetParam().image);
}

INSTANTIATE_TEST_SUITE_P(
    Names, FileKindOf,
    testing::Values(
        KindCase{"Jbi", "FOO.JBI", 10, "filejob"}, KindCase{"Jbr", "A.JBR", 0, "filejob"},
        KindCase{"Cnd", "TOOL.CND", 1, "filejob"}, KindCase{"Dat", "VAR.DAT", 1, "filejob"},
        KindCase{"Sys", "X.SYS", 1, "filejob"}, KindCase{"Prm", "RC.PRM", 1, "filejob"},
        KindCase{"Lst", "JOBS.LST", 1, "filejob"}, KindCase{"LowerCase", "a.jbi", 1, "filejob"},
        KindCase{"MixedCase", "a.jBi", 1, "filejob"},
        KindCase{"EndWithoutPoint", "MYJBI", 1, "filejob"},
        KindCase{"TheEndAlone", "JBI", 1, "filejob"},
        KindCase{"JapaneseName", "溶接.JBI", 1, "filejob"},
        KindCase{"OtherEnd", "readme.txt", 1, "file"},
        KindCase{"EndNotLast", "A.JBI.BAK", 1, "file"}, KindCase{"TooShort", "BI", 1, "file"},
        KindCase{"Empty", "", 0, "file"}, KindCase{"JapaneseEnd", "溶接", 1, "file"},
        KindCase{"Folder", "JOBS", -1, "folder"},
        KindCase{"FolderNamedAsAJob", "OLD.JBI", -1, "folder"}),
    [](const auto& row) { return std::string(row.param.title); });

} // namespace
} // namespace vantrel
