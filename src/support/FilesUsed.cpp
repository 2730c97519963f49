// The one list of what this process reads and writes, from which its dependencies are told. Files
// are told apart by device and inode, since one file goes by many names; the first name stays. A
// path that is gone or no regular file when it is noted is left out, without a message.

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
    // Not made unique, unlike the files read: a name comes twice when two outputs were given it.
    State().files.outputs.push_back(path);
    State().files.areOutputsWritten = State().files.areOutputsWritten && isWritten;
}

const FilesUsed& UsedFiles() {
    return State().files;
}
