#ifndef DORVEX_DRIVER_COMPLAINTS_H
#define DORVEX_DRIVER_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What command line, runs and the compilation have to say. Wording, doubled blanks and the blank
/// at the end of a line included, is what users' scripts read and stays. The lines that tell what a
/// run does, and "Failed to ..." behind a summary, have no severity and count as nothing. Whether a
/// line goes to standard output or standard error is as settled as its text: a fault and a source
/// that cannot be read go to standard error, all others to standard output.
enum class DriverMessage {
    InvalidOption,
    IncompleteOption,
    IgnoredFile,
    NoSource,
    SecondSource,
    FileType,
    NoSchemaName,
    NoCopybookName,
    NoCobolName,
    Validation,
    LaxPass,
    StrictPass,
    Checking,
    NoSchemaErrors,
    NotCreated,
    NotValidated,
    UnreadableSource,
    NoCompiler,
    NotStarted,
    NotReturned,
    NotCompiled,
    NoProgram,
    NoRecord,
    Fault,
};

template <>
inline constexpr std::array kMessages<DriverMessage> = std::to_array<MessageRow<DriverMessage>>({
    {DriverMessage::InvalidOption, MessageStream::Output, kErrorSeverity,
     "Invalid option \"{OPTION}\""},
    {DriverMessage::IncompleteOption, MessageStream::Output, kErrorSeverity,
     "Ignoring incomplete command-line option \"{OPTION}\""},
    {DriverMessage::IgnoredFile, MessageStream::Output, kErrorSeverity,
     "Invalid command line option, ignoring \"{FILE}\""},
    {DriverMessage::NoSource, MessageStream::Output, kErrorSeverity,
     "Source filename not specified"},
    {DriverMessage::SecondSource, MessageStream::Output, kWarningSeverity,
     "Source filename \"{FILE}\" already specified.  Ignoring \"{OTHER}\""},
    {DriverMessage::FileType, MessageStream::Output, kErrorSeverity,
     "Unrecognized file type \"{FILE}\""},
    {DriverMessage::NoSchemaName, MessageStream::Output, kErrorSeverity,
     "Failed to specify XML Schema filename"},
    {DriverMessage::NoCopybookName, MessageStream::Output, kErrorSeverity,
     "Failed to specify COBOL Copybook filename"},
    {DriverMessage::NoCobolName, MessageStream::Output, kErrorSeverity,
     "Failed to specify COBOL filename"},
    {DriverMessage::Validation, MessageStream::Output, "",
     "Performing validation of \"{FILE}\", ignoring other options"},
    {DriverMessage::LaxPass, MessageStream::Output, "",
     "Validating \"{FILE}\" for well-formedness and schema conformity."},
    {DriverMessage::StrictPass, MessageStream::Output, "",
     "Validating \"{FILE}\" for schema conformity. "},
    {DriverMessage::Checking, MessageStream::Output, "", "Checking {FILE} for errors"},
    {DriverMessage::NoSchemaErrors, MessageStream::Output, "",
     "No schema errors found, processing XML schema {FILE}"},
    {DriverMessage::NotCreated, MessageStream::Output, "", "Failed to create {FILE}"},
    {DriverMessage::NotValidated, MessageStream::Output, "", "Failed to validate {FILE}"},
    {DriverMessage::UnreadableSource, MessageStream::Errors, kNoteSeverity,
     "Source \"{FILE}\" cannot be read"},
    {DriverMessage::NoCompiler, MessageStream::Output, kErrorSeverity,
     "Unable to start the COBOL compiler \"kcomp\""},
    {DriverMessage::NotStarted, MessageStream::Output, kErrorSeverity,
     "Unable to create cobol compiler process"},
    {DriverMessage::NotReturned, MessageStream::Output, kErrorSeverity,
     "Failed to return from COBOL compiler execution"},
    {DriverMessage::NotCompiled, MessageStream::Output, kErrorSeverity,
     "Failed to compile {FILE}.  Please correct the errors and try again."},
    {DriverMessage::NoProgram, MessageStream::Output, kErrorSeverity,
     "No program found in COBOL data dictionary \"{FILE}\""},
    {DriverMessage::NoRecord, MessageStream::Output, kErrorSeverity,
     "No record found in COBOL data dictionary \"{FILE}\""},
    {DriverMessage::Fault, MessageStream::Errors, kInternalErrorSeverity, "{TEXT}"},
});
static_assert(AreInOrder(kMessages<DriverMessage>));

#endif
