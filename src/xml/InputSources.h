#ifndef DORVEX_XML_INPUTSOURCES_H
#define DORVEX_XML_INPUTSOURCES_H

#include <memory>

#include <xercesc/sax/InputSource.hpp>

/// Makes the source that the parser library would make of `name`, which counts from the file `base`
/// (null: from the working directory). Throws the library's exceptions.
std::unique_ptr<xercesc::InputSource> MakeInputSource(const XMLCh* base, const XMLCh* name);

/// Says whether the source is a file that exists but cannot be read as one, and more than once: a
/// directory, a pipe, a device.
bool IsUnreadableFile(const xercesc::InputSource& source);

#endif
