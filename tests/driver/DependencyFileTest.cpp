#include "driver/DependencyFile.h"

#include <gtest/gtest.h>

#include "ScratchFiles.h"

namespace {

TEST(DependencyRule, NamesWhatIsThereInTheFormOfMake) {
    const CKTWorkingDirectory directory;
    for (const char* name :
         {"plain.xsd", "a b.xsd", "c#d$e", "f\\ g", "h:i", "new\nline", "o.cpy"}) {
        WriteFile(name, "");
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
}

}  // namespace
