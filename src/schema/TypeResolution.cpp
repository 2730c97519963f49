// Namespaces, look-ups of declarations, and the built-in types.

#include <array>
#include <unordered_map>

#include "schema/GeneratorState.h"
#include "schema/KTCOBOLGenerator.h"

namespace {

constexpr std::string_view kXmlNamespace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kSchemaHost = "http://www.w3.org";

struct BuiltInForm {
    std::string_view type;
    const char* picture;  // null: the usage alone
    const char* usage;    // null: none
    bool decimal;
    bool answer;
};

constexpr BuiltInForm Text(std::string_view type) {
    return {type, "X", nullptr, false, true};
}
constexpr BuiltInForm Count(std::string_view type) {
    return {type, "9", nullptr, false, true};
}
constexpr BuiltInForm Number(std::string_view type) {
    return {type, "S9", nullptr, false, false};
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
                                      BuiltInForm{"decimal", "S9", nullptr, true, false},
                                      BuiltInForm{"float", nullptr, "COMP-1", false, false},
                                      BuiltInForm{"double", nullptr, "COMP-2", false, false}};

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

bool IsDeclarationOf(const CKTXMLElement* e, DeclarationList list) {
    switch (GeneratorKindOf(e->getName())) {
        case GeneratorKind::ComplexType:
            return list == COMPLEX_TYPES;
        case GeneratorKind::SimpleType:
            return list == SIMPLE_TYPES;
        case GeneratorKind::Group:
            return list == GROUPS;
        case GeneratorKind::AttributeGroup:
            return list == ATTRIBUTE_GROUPS;
        default:
            return false;
    }
}

}  // namespace

GeneratorProcessState& GeneratorState() {
    static GeneratorProcessState state;
    return state;
}

bool CKTCOBOLGenerator::getNamespaceURI(const CKTXMLElement* e, std::string_view attrName,
                                        std::string& uri) const {
    if (attrName.empty()) {
        return false;
    }
    if (e != nullptr) {
        const CKTXMLAttribute* attribute = e->getAttribute(attrName);
        if (attribute == nullptr) {
            attribute = FindAttributeAbove(e->getParent(), attrName);
        }
        if (attribute != nullptr) {
            uri = attribute->getValue();
            return true;
        }
    }
    if (attrName == "xmlns:xml") {
        uri = kXmlNamespace;
        return true;
    }
    if (attrName != "xmlns" && attrName != "targetNamespace") {
        return false;
    }
    uri.clear();
    if (const CKTXMLElement* schema = GeneratorState().currentSchemaElement) {
        findAttrByName(schema, "targetNamespace", uri);
    }
    return true;
}

/// Finds the attribute at or above `e`. The answer is remembered, because the declarations of one
/// parent are asked about one after the other and may lie deep.
const CKTXMLAttribute* CKTCOBOLGenerator::FindAttributeAbove(const CKTXMLElement* e,
                                                             std::string_view name) const {
    FoundAbove& last = m_LastFound[std::string(name)];
    if (last.start != e) {
        last.start = e;
        last.attribute = nullptr;
        for (; e != nullptr && last.attribute == nullptr; e = e->getParent()) {
            last.attribute = e->getAttribute(name);
        }
    }
    return last.attribute;
}

bool CKTCOBOLGenerator::getTypeNamespace(const CKTXMLElement* context, std::string_view qname,
                                         std::string& uri) const {
    if (context == nullptr || qname.empty()) {
        return false;
    }
    const std::string_view prefix = CKTXMLNode::getNameQualifier(qname);
    return getNamespaceURI(context, prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix), uri);
}

bool CKTCOBOLGenerator::getTypeNamespace(std::string_view qname, std::string& uri) const {
    return getTypeNamespace(GeneratorState().currentSchemaElement, qname, uri);
}

bool CKTCOBOLGenerator::getElementNamespace(const CKTXMLElement* e, std::string& uri) const {
    return getNamespaceURI(e, "targetNamespace", uri);
}

bool CKTCOBOLGenerator::IsSchemaNamespace(std::string_view uri) {
    if (uri == kSchemaNamespace) {
        return true;
    }
    const std::size_t host = uri.find(kSchemaHost);
    return host != std::string_view::npos &&
           uri.find("XMLSchema", host + kSchemaHost.size()) != std::string_view::npos;
}

bool CKTCOBOLGenerator::isSupportedDefaultSchemaType(const CKTXMLElement* context,
                                                     std::string& typeName) const {
    std::string uri;
    if (context == nullptr || typeName.empty() || !getTypeNamespace(context, typeName, uri) ||
        !IsSchemaNamespace(uri)) {
        return false;
    }
    typeName = std::string(CKTXMLNode::getNonQualifiedName(typeName));
    return FindBuiltInForm(typeName) != nullptr;
}

/// Says whether `qname` means a type of XML Schema that leaves its content open: anyType or
/// anySimpleType, or, when asked for, one of the list types.
bool CKTCOBOLGenerator::IsOpenType(const CKTXMLElement* context, std::string_view qname,
                                   bool orListType) const {
    std::string uri;
    if (!getTypeNamespace(context, qname, uri) || !IsSchemaNamespace(uri)) {
        return false;
    }
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    return name == "anyType" || name == "anySimpleType" ||
           (orListType && (name == "NMTOKENS" || name == "IDREFS" || name == "ENTITIES"));
}

bool CKTCOBOLGenerator::convertXMLtoCOBOL(CKTCOBOLRecordItem* item, const CKTXMLElement* context,
                                          std::string typeName) const {
    if (item == nullptr || !isSupportedDefaultSchemaType(context, typeName)) {
        return false;
    }
    const BuiltInForm* form = FindBuiltInForm(typeName);
    if (form->picture != nullptr) {
        item->m_sPicType = form->picture;
    }
    if (form->usage != nullptr) {
        item->m_sUsage = form->usage;
    }
    item->m_bHasFraction = item->m_bHasFraction || form->decimal;
    return form->answer;
}

/// Gives `item` a built-in type and, when it has no size yet, the type's default size. False, with
/// the item unchanged, when `typeName` is no such type.
bool CKTCOBOLGenerator::ConvertBuiltIn(Item* item, const CKTXMLElement* context,
                                       const std::string& typeName) const {
    std::string localName = typeName;
    if (!isSupportedDefaultSchemaType(context, localName)) {
        return false;
    }
    convertXMLtoCOBOL(item, context, typeName);
    if (item->m_sPicLength.empty()) {
        item->m_sPicLength = item->m_sPicType == "X" ? "80" : item->m_bHasFraction ? "9" : "18";
    }
    return true;
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const CKTXMLElement* context,
                                                    std::string_view qname, DeclarationList list) {
    std::string uri;
    if (m_pDocument == nullptr || !getTypeNamespace(context, qname, uri)) {
        return nullptr;
    }
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    if (list != REDEFINED_ORIGINAL) {
        if (m_pIndex == nullptr) {
            std::string defaultNamespace;
            getElementNamespace(nullptr, defaultNamespace);
            m_pIndex = std::make_unique<CKTDeclarationIndex>(*m_pDocument, defaultNamespace);
        }
        return m_pIndex->Find(uri, name, list);
    }
    for (const CKTXMLElement* up = context; up != nullptr; up = up->getParent()) {
        if (CKTXMLElement* replaced = m_pDocument->getReplaced(up)) {
            std::string own;
            getElementNamespace(up, own);
            const bool same =
                up->getAttribute("name")->getValue() == name && (uri.empty() || uri == own);
            return same ? replaced : nullptr;
        }
    }
    return nullptr;
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const std::vector<CKTXMLElement*>& list,
                                                    std::string_view name) {
    for (CKTXMLElement* e : list) {
        std::string own;
        if (findAttrByName(e, "name", own) && own == CKTXMLNode::getNonQualifiedName(name)) {
            return e;
        }
    }
    return nullptr;
}

CKTXMLElement* CKTCOBOLGenerator::FindType(const CKTXMLElement* context, std::string_view qname) {
    CKTXMLElement* type = findElementByName(context, qname, SIMPLE_TYPES);
    return type != nullptr ? type : findElementByName(context, qname, COMPLEX_TYPES);
}

/// Finds what a derivation or group reference names. Within a redefinition the name of the very
/// declaration that is redefined means the replaced one.
CKTXMLElement* CKTCOBOLGenerator::FindBase(const CKTXMLElement* context, std::string_view qname,
                                           DeclarationList list) {
    CKTXMLElement* replaced = nullptr;
    if (m_pDocument != nullptr && !m_pDocument->getList(REDEFINED).empty()) {
        replaced = findElementByName(context, qname, REDEFINED_ORIGINAL);
    }
    return replaced != nullptr && IsDeclarationOf(replaced, list)
               ? replaced
               : findElementByName(context, qname, list);
}

CKTXMLElement* CKTCOBOLGenerator::FindBaseType(const CKTXMLElement* context,
                                               std::string_view qname) {
    CKTXMLElement* type = FindBase(context, qname, SIMPLE_TYPES);
    return type != nullptr ? type : FindBase(context, qname, COMPLEX_TYPES);
}
