#ifndef DORVEX_XMLGEN_COMPLAINTS_H
#define DORVEX_XMLGEN_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What the outputs of a dictionary have to say.
enum class XmlgenMessage {
    NoDictionary,
    NoTarget,
    NoFormatter,
    NoFileName,
    NoFileType,
    UnopenedOutput,
    EmptyMapping,
    IdleEntry,
    IdleEntries,
    Redefinition,
    Renaming,
    RenamingOfRange,
    TooDeep,
    Range,
    NoEnumerators,
    ForeignGroup,
    ForeignItem,
    InvalidSchema,
};

template <>
inline constexpr std::array kMessages<XmlgenMessage> = std::to_array<MessageRow<XmlgenMessage>>({
    {XmlgenMessage::NoDictionary, MessageStream::Errors, "", "Invalid COBOL Data Dictionary"},
    {XmlgenMessage::NoTarget, MessageStream::Errors, "", "Invalid XML Target Formatter"},
    {XmlgenMessage::NoFormatter, MessageStream::Errors, "", "Invalid XML Formatter"},
    {XmlgenMessage::NoFileName, MessageStream::Errors, "",
     "Invalid filename.  Outputting XML to console:\n"},
    {XmlgenMessage::NoFileType, MessageStream::Errors, "",
     "Invalid File Type Selection for XML Output"},
    {XmlgenMessage::UnopenedOutput, MessageStream::Errors, "",
     "Unable to open output file {FILE}\nOutputting XML to stdout by default\n"},
    {XmlgenMessage::EmptyMapping, MessageStream::Errors, kNoteSeverity,
     "Mapping file \"{FILE}\" holds no entries"},
    {XmlgenMessage::IdleEntry, MessageStream::Errors, kNoteSeverity,
     "Mapping entry \"{NAME}\" matches no data item"},
    {XmlgenMessage::IdleEntries, MessageStream::Errors, kNoteSeverity,
     "{NUMBER} further mapping entries match no data item"},
    {XmlgenMessage::Redefinition, MessageStream::Errors, kWarningSeverity,
     "The redefines clause is not supported by this version of the COBOL runtime. The element "
     "\"{NAME}\" and it's child data items will not be converted by DORVEX."},
    {XmlgenMessage::Renaming, MessageStream::Errors, kWarningSeverity,
     "This version of DORVEX does not support the RENAMES clause"},
    {XmlgenMessage::RenamingOfRange, MessageStream::Errors, kWarningSeverity,
     "This version of DORVEX does not support the RENAMES clause for ranges"},
    {XmlgenMessage::TooDeep, MessageStream::Errors, kWarningSeverity,
     "Data item \"{NAME}\" is nested deeper than COBOL level {NUMBER}.  Item will not be "
     "converted."},
    {XmlgenMessage::Range, MessageStream::Errors, kWarningSeverity,
     "Data range specifier \"{NAME}\" is not supported by DORVEX."},
    {XmlgenMessage::NoEnumerators, MessageStream::Errors, kWarningSeverity,
     "Due to non-support of data range specifiers, enumerators will not be generated for the "
     "parent element of data-range \"{NAME}\""},
    {XmlgenMessage::ForeignGroup, MessageStream::Errors, kWarningSeverity,
     "The generated schema requires an <import> for reference of definitions in the {NAMESPACE} "
     "namespace."},
    {XmlgenMessage::ForeignItem, MessageStream::Errors, kWarningSeverity,
     "The generated schema requires an <import> statement for the reference of definitions in the "
     "{NAMESPACE} namespace."},
    {XmlgenMessage::InvalidSchema, MessageStream::Errors, kWarningSeverity,
     "The generated schema is invalid for the XML instance document represented by the generated "
     "COBOL XD."},
});
static_assert(AreInOrder(kMessages<XmlgenMessage>));

#endif
