// A main schema and up to three that it can reach become a copybook.

#include "FuzzSupport.h"
#include "driver/Runs.h"
#include "support/Console.h"

namespace {

/// Everything that a run leaves behind.
std::string Convert(const std::vector<std::string>& files, std::size_t size) {
    static constexpr const char* kNames[] = {"main.xsd", "a.xsd", "b.xsd", "c.xsd"};
    const CKTFreshRun run(size);
    Settings settings;
    settings.schemaName = kNames[0];
    settings.copybookName = "out.cpy";
    settings.promptForOverwrite = false;
    settings.countInClauses = size % 2 == 0;
    settings.uniqueDataNames = size % 3 == 0;
    for (std::size_t i = 0; i < files.size() && i < std::size(kNames); ++i) {
        WriteWhole(kNames[i], files[i]);
    }
    const int status = RunSchemaToCobol(settings).value_or(ExitStatus());
    const std::string copybook = ReadWhole("out.cpy");
    RequireFixedFormat(copybook);
    return std::to_string(status) + copybook;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> files = Split(data, size, kNextFile);
    const std::string result = Convert(files, size);
    Require(size % 16 != 0 || Convert(files, size) == result, "the same input, the same output");
    return 0;
}
