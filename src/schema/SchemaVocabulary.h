#ifndef DORVEX_SCHEMA_SCHEMAVOCABULARY_H
#define DORVEX_SCHEMA_SCHEMAVOCABULARY_H

#include <string>
#include <string_view>

#include "xml/KTXMLElement.h"

/// What a schema document tells apart. The generator has a classification of its own
/// (GeneratorKind): the two lists differ and are not interchangeable. "appInfo" and "keyRef" are
/// recognised in this spelling only.
enum class SchemaKind {
    Schema,
    Element,
    Attribute,
    AttributeGroup,
    SimpleType,
    Enumeration,
    Group,
    ComplexType,
    SimpleContent,
    ComplexContent,
    Extension,
    Restriction,
    Sequence,
    Choice,
    Union,
    List,
    All,
    Any,
    Unique,
    AnyAttribute,
    AppInfo,
    Key,
    KeyRef,
    Selector,
    Field,
    Import,
    Include,
    Redefine,
    Other
};

/// What the walk from schema to record tells apart; enumerations are Other here.
enum class GeneratorKind {
    Schema,
    Element,
    Attribute,
    AttributeGroup,
    SimpleType,
    Group,
    ComplexType,
    SimpleContent,
    ComplexContent,
    Extension,
    Restriction,
    Sequence,
    Choice,
    Union,
    List,
    All,
    Any,
    Unique,
    AnyAttribute,
    AppInfo,
    Key,
    KeyRef,
    Selector,
    Field,
    Import,
    Include,
    Redefine,
    Other
};

/// The facets of a restriction.
enum class FacetKind {
    Length,
    MinLength,
    MaxLength,
    Pattern,
    Enumeration,
    WhiteSpace,
    MaxInclusive,
    MaxExclusive,
    MinInclusive,
    MinExclusive,
    TotalDigits,
    FractionDigits,
    None
};

/// Classify by the local part of a tag name, compared exactly.
SchemaKind SchemaKindOf(std::string_view tagName);
GeneratorKind GeneratorKindOf(std::string_view tagName);
FacetKind FacetKindOf(std::string_view tagName);

/// Search tests for CKTXMLElement::findElement: the local part of the tag name is that of the key;
/// an attribute named as the local part of the key is there; the element is a `schema`, `import`,
/// `include` or `redefine` (without a key).
CKTXMLElement* compareElemByName(CKTXMLElement* e, const std::string& name);
CKTXMLElement* compareElemByAttrType(CKTXMLElement* e, const std::string& name);
CKTXMLElement* compareElemForMultipartSchema(CKTXMLElement* e, const std::string& unused);

/// Looks an attribute up by its name as written. `value` (may be null) becomes its value, empty
/// when it is not there. Returns whether it is.
bool findAttrByName(const CKTXMLElement* e, std::string_view name, std::string* value);

/// Says whether any attribute has exactly `value`; never for an empty value.
bool findAttrByValue(const CKTXMLElement* e, std::string_view value);

#endif
