#ifndef DORVEX_SCHEMA_COMPLAINTS_H
#define DORVEX_SCHEMA_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What the way from a schema to its records has to say; it stops nothing. A name is shown as the
/// schema writes it. The parts say what white space is to become.
enum class SchemaMessage {
    NoFileName,
    NoDocument,
    NoSchema,
    QualifiedAttributes,
    NoHead,
    SeveralHeads,
    UndeclaredHead,
    TooManyItems,
    TooComplex,
    Converted,
    MissingReference,
    MissingAttribute,
    MissingMember,
    UnsupportedType,
    Recursion,
    UnconstrainedType,
    SubstitutionGroup,
    Wildcard,
    LostList,
    TooDeep,
    Pattern,
    Range,
    WhiteSpace,
    Preserve,
    Replace,
    Collapse,
};

template <>
inline constexpr std::array kMessages<SchemaMessage> = std::to_array<MessageRow<SchemaMessage>>({
    {SchemaMessage::NoFileName, MessageStream::Output, "",
     "Invalid filename.  Outputting  to console:\n"},
    {SchemaMessage::NoDocument, MessageStream::Errors, kInternalErrorSeverity,
     "Error initializing schema document\n"},
    {SchemaMessage::NoSchema, MessageStream::Errors, kInternalErrorSeverity,
     "Unable to locate schema element\n"},
    {SchemaMessage::QualifiedAttributes, MessageStream::Errors, kErrorSeverity,
     "COBOL XML does not support namespace qualifiers for attributes in instance documents"},
    {SchemaMessage::NoHead, MessageStream::Errors, kErrorSeverity,
     "No schema head element found in schema definition. A non-referenced\n global head element is "
     "required for conversion to COBOL record"},
    {SchemaMessage::SeveralHeads, MessageStream::Errors, kWarningSeverity,
     "More than one head element was found in the schema definition. Attempting to generate "
     "multiple file definitions"},
    {SchemaMessage::UndeclaredHead, MessageStream::Errors, kErrorSeverity,
     "Head element \"{NAME}\" is not declared.  Element will not be converted."},
    {SchemaMessage::TooManyItems, MessageStream::Errors, kErrorSeverity,
     "Record \"{NAME}\" exceeds {NUMBER} data items.  Record will not be converted."},
    {SchemaMessage::TooComplex, MessageStream::Errors, kErrorSeverity,
     "Record \"{NAME}\" is too complex to convert.  Record will not be converted."},
    {SchemaMessage::Converted, MessageStream::Errors, "",
     "Successfully converted {NUMBER} of {NUMBER} schema head element(s)."},
    {SchemaMessage::MissingReference, MessageStream::Errors, kErrorSeverity,
     "Cannot find referenced element {REFERENCE}.  Element will not be converted to COBOL record "
     "item."},
    {SchemaMessage::MissingAttribute, MessageStream::Errors, kErrorSeverity,
     "Cannot find group reference {REFERENCE}"},
    {SchemaMessage::MissingMember, MessageStream::Errors, kErrorSeverity,
     "Unable to locate type {REFERENCE} for <union> processing"},
    {SchemaMessage::UnsupportedType, MessageStream::Errors, kWarningSeverity,
     "An unsupported type {REFERENCE} has been referenced.  Element will not be converted to COBOL "
     "record item."},
    {SchemaMessage::Recursion, MessageStream::Errors, kErrorSeverity,
     "Cannot convert recursive reference of {REFERENCE} to COBOL record"},
    {SchemaMessage::UnconstrainedType, MessageStream::Errors, kWarningSeverity,
     "Cannot convert unconstrained type \"{NAME}\" to a valid COBOL data item. An XML Schema "
     "element requires a type=\"...\" attribute for successful conversion."},
    {SchemaMessage::SubstitutionGroup, MessageStream::Errors, kWarningSeverity,
     "substitionGroup encountered"},
    {SchemaMessage::Wildcard, MessageStream::Errors, kWarningSeverity,
     "Unsupported element <any> or <anyAttribute> encountered. Element will not be converted into "
     "COBOL xd."},
    {SchemaMessage::LostList, MessageStream::Errors, kWarningSeverity,
     "This version of DORVEX does not support list types.  The value of \"{NAME}\" is left out."},
    {SchemaMessage::TooDeep, MessageStream::Errors, kWarningSeverity,
     "Element \"{NAME}\" is nested deeper than COBOL level {NUMBER}.  Element will not be "
     "converted to COBOL record item."},
    {SchemaMessage::Pattern, MessageStream::Errors, kWarningSeverity,
     "This version of DORVEX does not support the <pattern> element facet for element {NAME}"},
    {SchemaMessage::Range, MessageStream::Errors, kWarningSeverity,
     "This version of DORVEX does not support the {FACET} facet for the element {NAME}"},
    {SchemaMessage::WhiteSpace, MessageStream::Errors, kWarningSeverity,
     "Whitespace facet encountered Warning : Whitespace facet encountered for element {NAME} - "
     "{TEXT}"},
    {SchemaMessage::Preserve, MessageStream::Part, "",
     "No normalization is done, the value is not changed (this is the behavior required by  [XML "
     "1.0 (Second Edition)] for element content)"},
    {SchemaMessage::Replace, MessageStream::Part, "",
     "All occurrences of #x9 (tab), #xA (line feed) and #xD (carriage return) are replaced with "
     "#x20 (space)"},
    {SchemaMessage::Collapse, MessageStream::Part, "",
     "After the processing implied by replace, contiguous sequences of #x20's are collapsed to a  "
     "single #x20, and leading and trailing #x20's are removed"},
});
static_assert(AreInOrder(kMessages<SchemaMessage>));

#endif
