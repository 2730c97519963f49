#include "driver/DependencyFile.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "../support/CaseFiles.h"

namespace {

TEST(DependencyRule, NamesWhatIsThereInTheFormOfMake) {
    const casetest::ScratchDirectory scratch;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(scratch.Path());
    for (const char* name :
         {"plain.xsd", "a b.xsd", "c#d$e", "f\\ g", "h:i", "new\nline", "o.cpy"}) {
        casetest::WriteFile(name, "");
    }
    FilesUsed files;
    files.read = {"plain.xsd", "gone.xsd", "a b.xsd",   "c#d$e",
                  "f\\ g",     "h:i",      "new\nline", "./o.cpy"};
    EXPECT_EQ(DependencyRule(files), "");
    files.outputs = {"o.cpy", "o d.xsd"};
    EXPECT_EQ(DependencyRule(files),
              "o.cpy o\\ d.xsd: \\\n  plain.xsd \\\n  a\\ b.xsd \\\n  c\\#d$$e \\\n  f\\\\\\ g \\\n"
              "  h\\:i\n");
    files.areOutputsWritten = false;
    EXPECT_EQ(DependencyRule(files), "");
    std::filesystem::current_path(before);
}

}  // namespace
