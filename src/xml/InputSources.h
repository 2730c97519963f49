#ifndef DORVEX_XML_INPUTSOURCES_H
#define DORVEX_XML_INPUTSOURCES_H

#include <memory>
#include <optional>
#include <string>

#include <xercesc/sax/InputSource.hpp>

/// A file of this machine, opened by exactly the bytes of its name. Its system identifier is the
/// one that the parser library would give it. Opening it is noted among the files that were read.
class CKTFileSource : public xercesc::InputSource {
public:
    /// `systemId` is the file's full name in the library's form, `path` the name to open it by.
    CKTFileSource(const std::u16string& systemId, std::string path);

    /// The stream; null when the file cannot be opened.
    [[nodiscard]] xercesc::BinInputStream* makeStream() const override;

    [[nodiscard]] const std::string& path() const { return m_sPath; }

private:
    std::string m_sPath;
};

/// Makes the source that `name` stands for where the file `base` writes it (null: the working
/// directory, for a name that the user gave): a file, or a location elsewhere. A location is looked
/// up in the catalogs first. Throws the library's exceptions.
std::unique_ptr<xercesc::InputSource> MakeInputSource(const XMLCh* base, const XMLCh* name);

/// Says whether the source is a file that exists but cannot be read as one, and more than once: a
/// directory, a pipe, a device.
bool IsUnreadableFile(const xercesc::InputSource& source);

/// The location of a source that would be fetched while the network is off; nothing for any other.
std::optional<std::string> RefusedLocation(const xercesc::InputSource& source);

/// The full name of the file, or the location, that a source opens.
std::string OpenedName(const xercesc::InputSource& source);

#endif
