#ifndef DORVEX_XML_COMPLAINTS_H
#define DORVEX_XML_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What the parser and the inputs have to say; the diagnostics of the parser library keep its own
/// words. The bounds stand in parts: the error handler gives them their place in the input. The
/// lines about a failed parse, start or stop have no severity, so whoever reports a failed parse
/// counts it. "occured" is how users' scripts know these lines, beside an "occurred" in another
/// one.
enum class XmlMessage {
    Checking,
    Warning,
    Error,
    FatalError,
    Summary,
    Unreadable,
    NotFetched,
    UnusableCatalog,
    CatalogIsNoFile,
    CatalogNotFetched,
    DeepElements,
    LongEntities,
    DeepPattern,
    LongPatterns,
    RepeatedGroupOfType,
    RepeatedGroup,
    LoadException,
    LoadTreeException,
    LoadOutOfMemory,
    ParseException,
    ParseTreeException,
    ParseFault,
    NoStart,
    NoStop,
    NoTranscoder,
    OutOfMemory,
    UnknownFault,
};

template <>
inline constexpr std::array kMessages<XmlMessage> = std::to_array<MessageRow<XmlMessage>>({
    {XmlMessage::Checking, MessageStream::Output, "", "Validating {FILE} for well-formedness."},
    {XmlMessage::Warning, MessageStream::Part, kWarningSeverity,
     "{FILE}(Line {NUMBER}, Col {NUMBER}) : {TEXT}"},
    {XmlMessage::Error, MessageStream::Part, kErrorSeverity,
     "{FILE}(Line {NUMBER}, Col {NUMBER}) : {TEXT}"},
    {XmlMessage::FatalError, MessageStream::Part, kFatalErrorSeverity,
     "{FILE}(Line {NUMBER}, Col {NUMBER}) : {TEXT}"},
    {XmlMessage::Summary, MessageStream::Part, "", "{NUMBER} error(s), {NUMBER} warning(s)"},
    {XmlMessage::Unreadable, MessageStream::Part, "", "unable to read data from file"},
    {XmlMessage::NotFetched, MessageStream::Part, kErrorSeverity,
     "Network access is off, not fetched: \"{LOCATION}\""},
    {XmlMessage::UnusableCatalog, MessageStream::Errors, kNoteSeverity,
     "XML catalog \"{FILE}\" cannot be used: {TEXT}"},
    {XmlMessage::CatalogIsNoFile, MessageStream::Part, "", "it is no file"},
    {XmlMessage::CatalogNotFetched, MessageStream::Part, "", "it is not fetched"},
    {XmlMessage::DeepElements, MessageStream::Part, "",
     "elements are nested deeper than {NUMBER} levels"},
    {XmlMessage::LongEntities, MessageStream::Part, "",
     "entities expand to more than {NUMBER} characters"},
    {XmlMessage::DeepPattern, MessageStream::Part, "",
     "a pattern is nested deeper than {NUMBER} levels"},
    {XmlMessage::LongPatterns, MessageStream::Part, "",
     "patterns repeat to more than {NUMBER} parts"},
    {XmlMessage::RepeatedGroupOfType, MessageStream::Part, "",
     "a model group of type '{NAME}' repeats more than {NUMBER} times"},
    {XmlMessage::RepeatedGroup, MessageStream::Part, "",
     "a model group repeats more than {NUMBER} times"},
    {XmlMessage::LoadException, MessageStream::Errors, kErrorSeverity,
     "Unable to load schema. Exception Message: {TEXT}"},
    {XmlMessage::LoadTreeException, MessageStream::Errors, kErrorSeverity,
     "Unable to load schema. DOMException code: {NUMBER}"},
    {XmlMessage::LoadOutOfMemory, MessageStream::Errors, kErrorSeverity,
     "Unable to load schema. Out of memory"},
    {XmlMessage::ParseException, MessageStream::Errors, "",
     "An error occured during parsing. Exception Message: {TEXT}"},
    {XmlMessage::ParseTreeException, MessageStream::Errors, "",
     "A DOM error occured during parsing. DOMException code: {NUMBER}"},
    {XmlMessage::ParseFault, MessageStream::Errors, "", "An error occured during parsing"},
    {XmlMessage::NoStart, MessageStream::Errors, "",
     "Error during Xerces-c Initialization. Exception message: {TEXT}"},
    {XmlMessage::NoStop, MessageStream::Errors, "",
     "Error during Xerces-c termination. Exception message: {TEXT}"},
    {XmlMessage::NoTranscoder, MessageStream::Errors, "",
     "An error occurred during creation of output transcoder. Msg is: {TEXT}"},
    {XmlMessage::OutOfMemory, MessageStream::Part, "", "Out of memory"},
    {XmlMessage::UnknownFault, MessageStream::Part, "", "Unknown fault"},
});
static_assert(AreInOrder(kMessages<XmlMessage>));

#endif
