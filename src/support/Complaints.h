#ifndef DORVEX_SUPPORT_COMPLAINTS_H
#define DORVEX_SUPPORT_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What console and files have to say. The wording is what users' scripts read, the blank at the
/// end of a line included; nothing here is mended. What the terminal is asked or shown is no line
/// of its own and stands as a part.
enum class SupportMessage {
    Banner,
    BytesRead,
    BytesAndItems,
    FileExists,
    Overwrite,
    UnwritableOutput,
    NoFileName,
    CannotClose,
    CannotCopy,
    NoWideCharacter,
    NoNarrowCharacter,
};

template <>
inline constexpr std::array kMessages<SupportMessage> = std::to_array<MessageRow<SupportMessage>>({
    {SupportMessage::Banner, MessageStream::Output, "",
     "Ostrel DORVEX Version 1.0\nCopyright (c) the dorvex authors. All rights reserved.\n"},
    {SupportMessage::BytesRead, MessageStream::Part, "", "{NUMBER} bytes read"},
    {SupportMessage::BytesAndItems, MessageStream::Part, "",
     "{NUMBER} bytes read, {NUMBER} items written"},
    {SupportMessage::FileExists, MessageStream::Errors, kWarningSeverity,
     "The file \"{FILE}\" already exists"},
    {SupportMessage::Overwrite, MessageStream::Part, "",
     "Would you like to overwrite {FILE}? (y/n) "},
    {SupportMessage::UnwritableOutput, MessageStream::Errors, kErrorSeverity,
     "Unable to write output file \"{FILE}\""},
    {SupportMessage::NoFileName, MessageStream::Output, kErrorSeverity,
     "Invalid Filename.  Unable to create \"{FILE}\""},
    {SupportMessage::CannotClose, MessageStream::Output, kErrorSeverity,
     "Failed to close file \"{FILE}\" Ending DORVEX process. "},
    {SupportMessage::CannotCopy, MessageStream::Output, kErrorSeverity,
     "Unable to copy file contents of {FILE} to {OTHER}"},
    {SupportMessage::NoWideCharacter, MessageStream::Errors, kErrorSeverity,
     "Unable to convert multibyte character to Unicode"},
    {SupportMessage::NoNarrowCharacter, MessageStream::Errors, kErrorSeverity,
     "Unable to convert Unicode character to multibyte"},
});
static_assert(AreInOrder(kMessages<SupportMessage>));

#endif
