// Inputs of the parser library. Files are opened here and not by the library, because it sends
// their names through the locale and so misses those that the locale cannot decode; locations
// elsewhere are left to it.

#include "xml/InputSources.h"

#include <sys/stat.h>

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include <xercesc/framework/URLInputSource.hpp>
#include <xercesc/util/BinFileInputStream.hpp>
#include <xercesc/util/XMLURL.hpp>

#include "support/FilesUsed.h"
#include "support/Progress.h"
#include "xml/Paths.h"

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

/// The library decodes this one escape in names that are no URL.
std::u16string WithBlanks(std::u16string_view name) {
    std::u16string result;
    for (std::size_t at = 0; at < name.size(); ++at) {
        const bool blank = name.substr(at, 3) == u"%20";
        result += blank ? u' ' : name[at];
        at += blank ? 2 : 0;
    }
    return result;
}

std::unique_ptr<xercesc::InputSource> MakeFileSource(const std::string& systemId,
                                                     std::string path) {
    return std::make_unique<CKTFileSource>(PathText(systemId), std::move(path));
}

/// The file that `name` means in the file `base`.
std::unique_ptr<xercesc::InputSource> NamedInFile(const XMLCh* base, const XMLCh* name) {
    const std::string written = PathBytes(WithBlanks(name));
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

/// Replaces the escapes of a URL by their bytes. Nothing when one is malformed.
std::optional<std::string> Unescaped(std::string_view text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned byte = static_cast<unsigned char>(text[at]);
        if (text[at] == '%') {
            const std::string_view digits = text.substr(at + 1, 2);
            const char* end = digits.data() + digits.size();
            const auto [last, fault] = std::from_chars(digits.data(), end, byte, 16);
            if (digits.size() != 2 || last != end || fault != std::errc()) {
                return std::nullopt;
            }
            at += 2;
        }
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

bool IsOnThisMachine(const xercesc::XMLURL& url) {
    return url.getProtocol() == xercesc::XMLURL::File &&
           (url.getHost() == nullptr || std::u16string_view(url.getHost()) == u"localhost");
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
    NoteFileRead(m_sPath);
    return stream.release();
}

std::unique_ptr<xercesc::InputSource> MakeInputSource(const XMLCh* base, const XMLCh* name) {
    xercesc::XMLURL url;
    const bool located =
        base == nullptr ? xercesc::XMLURL::parse(name, url) : url.setURL(base, name, url);
    if (!located || url.isRelative()) {
        return base == nullptr ? NamedByUser(name) : NamedInFile(base, name);
    }
    if (IsOnThisMachine(url)) {
        if (std::optional<std::string> path = Unescaped(PathBytes(url.getPath()))) {
            return std::make_unique<CKTFileSource>(url.getURLText(), std::move(*path));
        }
    }
    return std::make_unique<xercesc::URLInputSource>(url);
}

bool IsUnreadableFile(const xercesc::InputSource& source) {
    struct stat status = {};
    const auto* file = dynamic_cast<const CKTFileSource*>(&source);
    return file != nullptr && ::stat(file->path().c_str(), &status) == 0 &&
           !S_ISREG(status.st_mode);
}

std::string InputIdentity(const xercesc::InputSource& source) {
    const auto* file = dynamic_cast<const CKTFileSource*>(&source);
    return FileIdentity(file != nullptr ? file->path() : PathBytes(source.getSystemId()));
}
