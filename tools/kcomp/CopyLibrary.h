#ifndef DORVEX_KCOMP_COPYLIBRARY_H
#define DORVEX_KCOMP_COPYLIBRARY_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where copy files are looked for.
class CKTCopyLibrary {
public:
    /// `source` is the path of the source, `path` a list of directories separated by colons, as
    /// the variable COBCPY holds it (empty for none).
    CKTCopyLibrary(std::string_view source, std::string_view path);

    /// Returns the path of the copy file `name`: first in the source's directory, then in those of
    /// the list. A name without an extension that is not there as it stands is tried with those of
    /// COBOL files, and a name that was not a literal also in lower and in upper case.
    [[nodiscard]] std::optional<std::string> Find(const std::string& name, bool literal) const;

private:
    std::vector<std::string> m_Directories;  // each with its last slash
};

#endif
