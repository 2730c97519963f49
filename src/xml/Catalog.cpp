// XML catalogs, as libxml2 reads them. It opens catalogs through the functions that are registered
// here: regular files of this machine and nothing else, so that no catalog is fetched. It reads
// each once, when it is first needed, and keeps it for the process. What it complains of becomes
// one note for each catalog; a look-up itself never fails.

#include "xml/Catalog.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>

#include <libxml/catalog.h>
#include <libxml/xmlIO.h>
#include <libxml/xmlerror.h>

#include "support/FilesUsed.h"
#include "xml/Complaints.h"
#include "xml/Paths.h"

namespace {

/// Notes the first complaint about a catalog.
void NoteUnusable(const std::string& catalog, std::string_view reason) {
    static std::set<std::string> noted;
    while (!reason.empty() && reason.back() == '\n') {
        reason.remove_suffix(1);
    }
    if (noted.insert(catalog).second) {
        Report<XmlMessage::UnusableCatalog>(catalog, reason);
    }
}

void TakeComplaint(void*, xmlErrorPtr error) {
    if (error->file != nullptr && error->message != nullptr) {
        NoteUnusable(LocalPath(error->file), error->message);
    }
}

/// Claims every name: OpenCatalog notes what it does not open.
int OpensEveryName(const char*) {
    return 1;
}

/// Opens a catalog or notes why not. The system's catalog may be missing without a word; one that
/// the user names may not.
void* OpenCatalog(const char* name) {
    const std::string path = LocalPath(name);
    struct stat status = {};
    int fault = ::stat(path.c_str(), &status) == 0 ? 0 : errno;
    void* file = nullptr;
    if (fault == 0 && S_ISREG(status.st_mode)) {  // a pipe would hold the program up
        file = xmlFileOpen(path.c_str());
        fault = errno;
    }
    if (file != nullptr) {
        NoteFileRead(path);
    } else if (IsLocation(path)) {
        NoteUnusable(path, MessageText<XmlMessage::CatalogNotFetched>());
    } else if (fault != ENOENT || std::getenv("XML_CATALOG_FILES") != nullptr) {
        NoteUnusable(
            path, fault == 0 ? MessageText<XmlMessage::CatalogIsNoFile>() : std::strerror(fault));
    }
    return file;
}

void PrepareCatalogs() {
    static const bool kPrepared = [] {
        // The library's own functions would fetch, so they go first.
        xmlCleanupInputCallbacks();
        xmlRegisterInputCallbacks(OpensEveryName, OpenCatalog, xmlFileRead, xmlFileClose);
        xmlSetStructuredErrorFunc(nullptr, TakeComplaint);
        return true;
    }();
    static_cast<void>(kPrepared);
}

struct LibraryText {
    // A variable that holds a function, so it cannot be named as a deleter.
    void operator()(xmlChar* text) const { xmlFree(text); }
};

}  // namespace

std::optional<std::string> FindInCatalogs(const std::string& location) {
    PrepareCatalogs();
    // The library's characters are unsigned bytes.
    const auto* sought = reinterpret_cast<const xmlChar*>(location.c_str());
    for (const auto resolve : {xmlCatalogResolveSystem, xmlCatalogResolveURI}) {
        const std::unique_ptr<xmlChar, LibraryText> found(resolve(sought));
        if (found != nullptr) {
            return reinterpret_cast<const char*>(found.get());
        }
    }
    return std::nullopt;
}
