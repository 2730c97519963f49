// The one list of what this process reads and writes, from which its dependencies are told.

#include "support/FilesUsed.h"

#include <sys/stat.h>

#include <set>
#include <utility>

namespace {

struct Notes {
    FilesUsed files;
    std::set<std::pair<dev_t, ino_t>> known;
};

Notes& State() {
    static Notes notes;
    return notes;
}

}  // namespace

void NoteFileRead(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
        State().known.emplace(status.st_dev, status.st_ino).second) {
        State().files.read.push_back(path);
    }
}

void NoteOutput(const std::string& path, bool isWritten) {
    State().files.outputs.push_back(path);
    State().files.areOutputsWritten = State().files.areOutputsWritten && isWritten;
}

const FilesUsed& UsedFiles() {
    return State().files;
}
