// Inputs of the parser library. Files are opened here and not by the library, because it sends
// their names through the locale and so misses those that the locale cannot decode; locations go
// through the catalogs first.

#include "xml/InputSources.h"

#include <sys/stat.h>

#include <optional>
#include <string_view>
#include <utility>

#include <xercesc/util/BinFileInputStream.hpp>
#include <xercesc/util/XMLURL.hpp>

#include "support/FilesUsed.h"
#include "support/Progress.h"
#include "xml/Catalog.h"
#include "xml/Paths.h"
#include "xml/RemoteInput.h"

namespace {

/// A file's bytes, counted for whoever waits for them.
class CKTCountedFile : public xercesc::BinFileInputStream {
public:
    using BinFileInputStream::BinFileInputStream;

    XMLSize_t readBytes(XMLByte* bytes, const XMLSize_t most) override {
        const XMLSize_t count = BinFileInputStream::readBytes(bytes, most);
        ReportBytesRead(count);
        return count;
    }
};

std::unique_ptr<xercesc::InputSource> MakeFileSource(const std::string& systemId,
                                                     std::string path) {
    return std::make_unique<CKTFileSource>(PathText(systemId), std::move(path));
}

/// The file that `name` means in the file `base`.
std::unique_ptr<xercesc::InputSource> NamedInFile(const XMLCh* base, const XMLCh* name) {
    const std::string written = WithBlanks(PathBytes(name));
    std::string path =
        IsRelativePath(written) ? WeavePaths(PathBytes(base), written) : WithoutDotSlash(written);
    return MakeFileSource(path, path);
}

/// The file that the user names, opened by the very name.
std::unique_ptr<xercesc::InputSource> NamedByUser(const XMLCh* name) {
    const std::string path = PathBytes(name);
    const std::string full = WithoutDotSlash(FullPath(path));
    return MakeFileSource(IsRelativePath(path) ? WithoutDotDotSlash(full) : full, path);
}

bool IsOnThisMachine(const xercesc::XMLURL& url) {
    return url.getProtocol() == xercesc::XMLURL::File &&
           (url.getHost() == nullptr || std::u16string_view(url.getHost()) == u"localhost");
}

/// What a catalog gives for a location. It is known by the name of what is opened, so that relative
/// locations count from there and the file is the same however it is reached.
std::unique_ptr<xercesc::InputSource> GivenByCatalog(const std::string& found) {
    xercesc::XMLURL url;
    if (IsLocation(found) && xercesc::XMLURL::parse(PathText(found).c_str(), url) &&
        !IsOnThisMachine(url)) {
        return std::make_unique<CKTRemoteSource>(url);
    }
    const std::string path = WithoutDotDotSlash(WithoutDotSlash(FullPath(LocalPath(found))));
    return MakeFileSource(path, path);
}

}  // namespace

CKTFileSource::CKTFileSource(const std::u16string& systemId, std::string path)
    : m_sPath(std::move(path)) {
    setSystemId(systemId.c_str());
}

xercesc::BinInputStream* CKTFileSource::makeStream() const {
    struct stat status = {};
    if (::stat(m_sPath.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return nullptr;  // a pipe would hold the program up, a directory has nothing to read
    }
    auto stream = std::make_unique<CKTCountedFile>(m_sPath.c_str());
    if (!stream->getIsOpen()) {
        return nullptr;
    }
    // Once it is open: what cannot be read is no dependency.
    NoteFileRead(m_sPath);
    return stream.release();
}

std::unique_ptr<xercesc::InputSource> MakeInputSource(const XMLCh* base, const XMLCh* name) {
    // As written first, then as it reads where it is written: a catalog may hold either.
    std::string location = PathBytes(name);
    std::optional<std::string> found =
        IsLocation(location) ? FindInCatalogs(location) : std::nullopt;
    xercesc::XMLURL url;
    if (!found) {
        const bool located =
            base == nullptr ? xercesc::XMLURL::parse(name, url) : url.setURL(base, name, url);
        // No URL even with its base, so it is a file name.
        if (!located || url.isRelative()) {
            return base == nullptr ? NamedByUser(name) : NamedInFile(base, name);
        }
        if (!IsLocation(location)) {
            found = FindInCatalogs(PathBytes(url.getURLText()));
        }
    }
    if (found) {
        return GivenByCatalog(*found);
    }
    if (IsOnThisMachine(url)) {
        if (std::optional<std::string> path = Unescaped(PathBytes(url.getPath()))) {
            return std::make_unique<CKTFileSource>(url.getURLText(), std::move(*path));
        }
    }
    return std::make_unique<CKTRemoteSource>(url);
}

std::optional<std::string> RefusedLocation(const xercesc::InputSource& source) {
    if (dynamic_cast<const CKTRemoteSource*>(&source) != nullptr &&
        CKTRemoteSource::IsNetworkOff()) {
        return OpenedName(source);
    }
    return std::nullopt;
}

bool IsUnreadableFile(const xercesc::InputSource& source) {
    struct stat status = {};
    const auto* file = dynamic_cast<const CKTFileSource*>(&source);
    return file != nullptr && ::stat(file->path().c_str(), &status) == 0 &&
           !S_ISREG(status.st_mode);
}

std::string OpenedName(const xercesc::InputSource& source) {
    const auto* file = dynamic_cast<const CKTFileSource*>(&source);
    return file != nullptr ? FullPath(file->path()) : PathBytes(source.getSystemId());
}
