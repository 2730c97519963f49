#ifndef DORVEX_SCHEMA_BUILTINTYPES_H
#define DORVEX_SCHEMA_BUILTINTYPES_H

#include <string_view>

class CKTCOBOLRecordItem;

/// What becomes of a type that XML Schema itself has.
struct BuiltInForm {
    std::string_view type;
    std::string_view picture;  ///< empty: the usage alone
    std::string_view usage;    ///< empty: none
    bool isDecimal;            ///< the picture may take decimal places
    bool isTextOrCount;        ///< a text, or a number without a sign
};

/// The form of the built-in type with this local name; null for one without a COBOL form.
const BuiltInForm* FindBuiltInForm(std::string_view type);

/// Says whether `uri` is the namespace of XML Schema, in any of its editions.
bool IsSchemaNamespace(std::string_view uri);

/// Say whether a type of XML Schema with this local name leaves its content open, or is a list.
bool IsOpenTypeName(std::string_view type);
bool IsListTypeName(std::string_view type);

/// Gives `item` the picture or usage of a built-in type.
void ApplyBuiltIn(CKTCOBOLRecordItem& item, const BuiltInForm& form);

/// Gives `item` a built-in type and, when it has no size yet, the type's default size.
void TakeBuiltIn(CKTCOBOLRecordItem& item, const BuiltInForm& form);

#endif
