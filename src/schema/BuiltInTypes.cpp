// The types of XML Schema that have a COBOL form: one table, found through an index by name. Open
// types and list types are not in it: what becomes of them is decided where they are used. A
// picture without a size of its own gets one that holds the usual values: 80 characters, 18 digits,
// 9 digits before a decimal point.

#include "schema/BuiltInTypes.h"

#include <array>
#include <unordered_map>

#include "cobol/KTCOBOLRecordItem.h"
#include "xml/Namespaces.h"

namespace {

// Drafts of the language have another year in their namespace and are taken for it.
constexpr std::string_view kSchemaHost = "http://www.w3.org";

constexpr BuiltInForm Text(std::string_view type) {
    return {type, "X", {}, false, true};
}
constexpr BuiltInForm Count(std::string_view type) {
    return {type, "9", {}, false, true};
}
constexpr BuiltInForm Number(std::string_view type) {
    return {type, "S9", {}, false, false};
}

constexpr std::array kBuiltInForms = {Text("string"),
                                      Text("boolean"),
                                      Text("duration"),
                                      Text("dateTime"),
                                      Text("time"),
                                      Text("date"),
                                      Text("gYearMonth"),
                                      Text("gYear"),
                                      Text("gMonthDay"),
                                      Text("gDay"),
                                      Text("gMonth"),
                                      Text("hexBinary"),
                                      Text("base64Binary"),
                                      Text("anyURI"),
                                      Text("QName"),
                                      Text("NOTATION"),
                                      Text("normalizedString"),
                                      Text("token"),
                                      Text("language"),
                                      Text("NMTOKEN"),
                                      Text("Name"),
                                      Text("NCName"),
                                      Text("ID"),
                                      Text("IDREF"),
                                      Text("ENTITY"),
                                      Text("CDATA"),
                                      Count("nonNegativeInteger"),
                                      Count("unsignedLong"),
                                      Count("unsignedInt"),
                                      Count("unsignedShort"),
                                      Count("unsignedByte"),
                                      Count("positiveInteger"),
                                      Number("integer"),
                                      Number("nonPositiveInteger"),
                                      Number("negativeInteger"),
                                      Number("long"),
                                      Number("int"),
                                      Number("short"),
                                      Number("byte"),
                                      BuiltInForm{"decimal", "S9", {}, true, false},
                                      BuiltInForm{"float", {}, "COMP-1", false, false},
                                      BuiltInForm{"double", {}, "COMP-2", false, false}};

}  // namespace

const BuiltInForm* FindBuiltInForm(std::string_view type) {
    static const auto index = [] {
        std::unordered_map<std::string_view, const BuiltInForm*> forms;
        for (const BuiltInForm& form : kBuiltInForms) {
            forms.emplace(form.type, &form);
        }
        return forms;
    }();
    const auto found = index.find(type);
    return found == index.end() ? nullptr : found->second;
}

bool IsSchemaNamespace(std::string_view uri) {
    if (uri == kSchemaNamespace) {
        return true;
    }
    const std::size_t host = uri.find(kSchemaHost);
    return host != std::string_view::npos &&
           uri.find("XMLSchema", host + kSchemaHost.size()) != std::string_view::npos;
}

bool IsOpenTypeName(std::string_view type) {
    return type == "anyType" || type == "anySimpleType";
}

bool IsListTypeName(std::string_view type) {
    return type == "NMTOKENS" || type == "IDREFS" || type == "ENTITIES";
}

void ApplyBuiltIn(CKTCOBOLRecordItem& item, const BuiltInForm& form) {
    if (!form.picture.empty()) {
        item.m_sPicType = form.picture;
    }
    if (!form.usage.empty()) {
        item.m_sUsage = form.usage;
    }
    // Once decimal, always decimal: a base may be asked twice.
    item.m_bHasFraction = item.m_bHasFraction || form.isDecimal;
}

void TakeBuiltIn(CKTCOBOLRecordItem& item, const BuiltInForm& form) {
    ApplyBuiltIn(item, form);
    // A length that a facet has set is not undone by the type that it narrows.
    if (item.m_sPicLength.empty()) {
        item.m_sPicLength = item.m_sPicType == "X" ? "80" : item.m_bHasFraction ? "9" : "18";
    }
}
