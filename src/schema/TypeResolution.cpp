// Namespaces, look-ups of declarations, and the built-in types.

#include <array>
#include <unordered_map>

#include "schema/GeneratorState.h"
#include "schema/KTCOBOLGenerator.h"

/// What becomes of a built-in type.
struct BuiltInForm {
    std::string_view type;
    std::string_view picture;  // empty: the usage alone
    std::string_view usage;    // empty: none
    bool decimal;
    bool answer;
};

namespace {

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
    const std::string* found = FindNamespace(e, attrName);
    if (found != nullptr) {
        uri = *found;
    }
    return found != nullptr;
}

/// As getNamespaceURI, without a copy: null when nothing is bound.
const std::string* CKTCOBOLGenerator::FindNamespace(const CKTXMLElement* e,
                                                    std::string_view attrName) const {
    static const std::string none;
    static const std::string xmlNamespace = "http://www.w3.org/XML/1998/namespace";
    if (attrName.empty()) {
        return nullptr;
    }
    if (e != nullptr) {
        if (const std::string* value = AttributeValue(e, attrName)) {
            return value;
        }
        if (const CKTXMLAttribute* above = FindAttributeAbove(e->getParent(), attrName)) {
            return &above->getValue();
        }
    }
    if (attrName == "xmlns:xml") {
        return &xmlNamespace;
    }
    if (attrName != "xmlns" && attrName != "targetNamespace") {
        return nullptr;
    }
    const CKTXMLElement* schema = GeneratorState().currentSchemaElement;
    const std::string* target =
        schema == nullptr ? nullptr : AttributeValue(schema, "targetNamespace");
    return target == nullptr ? &none : target;
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
    const std::string* found = FindTypeNamespace(context, qname);
    if (found != nullptr) {
        uri = *found;
    }
    return found != nullptr;
}

const std::string* CKTCOBOLGenerator::FindTypeNamespace(const CKTXMLElement* context,
                                                        std::string_view qname) const {
    if (context == nullptr || qname.empty()) {
        return nullptr;
    }
    const std::string_view prefix = CKTXMLNode::getNameQualifier(qname);
    return FindNamespace(context, prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix));
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

/// The built-in type that `qname` means at `context`; null when it means none with a COBOL form.
const BuiltInForm* CKTCOBOLGenerator::FindBuiltIn(const CKTXMLElement* context,
                                                  std::string_view qname) const {
    const std::string* uri = FindTypeNamespace(context, qname);
    return uri != nullptr && IsSchemaNamespace(*uri)
               ? FindBuiltInForm(CKTXMLNode::getNonQualifiedName(qname))
               : nullptr;
}

bool CKTCOBOLGenerator::isSupportedDefaultSchemaType(const CKTXMLElement* context,
                                                     std::string& typeName) const {
    const std::string* uri = FindTypeNamespace(context, typeName);
    if (uri == nullptr || !IsSchemaNamespace(*uri)) {
        return false;
    }
    typeName = std::string(CKTXMLNode::getNonQualifiedName(typeName));
    return FindBuiltInForm(typeName) != nullptr;
}

/// Says whether `qname` means a type of XML Schema that leaves its content open.
bool CKTCOBOLGenerator::IsOpenType(const CKTXMLElement* context, std::string_view qname) const {
    const std::string* uri = FindTypeNamespace(context, qname);
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    return uri != nullptr && IsSchemaNamespace(*uri) &&
           (name == "anyType" || name == "anySimpleType");
}

/// Says whether `qname` means one of the list types of XML Schema.
bool CKTCOBOLGenerator::IsListType(const CKTXMLElement* context, std::string_view qname) const {
    const std::string* uri = FindTypeNamespace(context, qname);
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    return uri != nullptr && IsSchemaNamespace(*uri) &&
           (name == "NMTOKENS" || name == "IDREFS" || name == "ENTITIES");
}

bool CKTCOBOLGenerator::convertXMLtoCOBOL(CKTCOBOLRecordItem* item, const CKTXMLElement* context,
                                          const std::string& typeName) const {
    const BuiltInForm* form = item == nullptr ? nullptr : FindBuiltIn(context, typeName);
    if (form == nullptr) {
        return false;
    }
    ApplyBuiltIn(item, *form);
    return form->answer;
}

void CKTCOBOLGenerator::ApplyBuiltIn(Item* item, const BuiltInForm& form) {
    if (!form.picture.empty()) {
        item->m_sPicType = form.picture;
    }
    if (!form.usage.empty()) {
        item->m_sUsage = form.usage;
    }
    item->m_bHasFraction = item->m_bHasFraction || form.decimal;
}

/// Gives `item` a built-in type and, when it has no size yet, the type's default size.
void CKTCOBOLGenerator::TakeBuiltIn(Item* item, const BuiltInForm& form) {
    ApplyBuiltIn(item, form);
    if (item->m_sPicLength.empty()) {
        item->m_sPicLength = item->m_sPicType == "X" ? "80" : item->m_bHasFraction ? "9" : "18";
    }
}

/// Answers what `lookUp` found for the one name that counts at `e` when it was first asked for.
template <typename LookUp>
const CKTCOBOLGenerator::NameMeaning& CKTCOBOLGenerator::Remember(const CKTXMLElement* e,
                                                                  LookUp lookUp) {
    const auto [found, isNew] = m_Meanings.try_emplace(e);
    if (isNew) {
        found->second = lookUp();
    }
    return found->second;
}

const CKTCOBOLGenerator::NameMeaning& CKTCOBOLGenerator::MeaningOfType(const CKTXMLElement* context,
                                                                       const std::string& type) {
    return Remember(context, [&] {
        NameMeaning meaning;
        meaning.builtIn = FindBuiltIn(context, type);
        if (meaning.builtIn == nullptr) {
            meaning.declaration = FindType(context, type);
            meaning.complexType = findElementByName(context, type, COMPLEX_TYPES);
        }
        return meaning;
    });
}

const CKTCOBOLGenerator::NameMeaning& CKTCOBOLGenerator::MeaningOfBase(const CKTXMLElement* context,
                                                                       const std::string& base) {
    return Remember(context, [&] {
        NameMeaning meaning;
        meaning.builtIn = FindBuiltIn(context, base);
        if (meaning.builtIn == nullptr) {
            meaning.declaration = FindBaseType(context, base);
        }
        return meaning;
    });
}

/// What the `ref` of an element, attribute or group refers to in the chosen list.
CKTXMLElement* CKTCOBOLGenerator::FindReferenced(const CKTXMLElement* context,
                                                 const std::string& ref, DeclarationList list) {
    return Remember(context,
                    [&] {
                        NameMeaning meaning;
                        const bool declared = list == ELEMENTS || list == ATTRIBUTES;
                        meaning.declaration = declared ? findElementByName(context, ref, list)
                                                       : FindBase(context, ref, list);
                        return meaning;
                    })
        .declaration;
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const CKTXMLElement* context,
                                                    std::string_view qname, DeclarationList list) {
    const std::string* uri = FindTypeNamespace(context, qname);
    if (m_pDocument == nullptr || uri == nullptr) {
        return nullptr;
    }
    const std::string_view name = CKTXMLNode::getNonQualifiedName(qname);
    if (list != REDEFINED_ORIGINAL) {
        if (m_pIndex == nullptr) {
            std::string defaultNamespace;
            getElementNamespace(nullptr, defaultNamespace);
            m_pIndex = std::make_unique<CKTDeclarationIndex>(*m_pDocument, defaultNamespace);
        }
        return m_pIndex->Find(*uri, name, list);
    }
    for (const CKTXMLElement* up = context; up != nullptr; up = up->getParent()) {
        if (CKTXMLElement* replaced = m_pDocument->getReplaced(up)) {
            const bool same = up->getAttribute("name")->getValue() == name &&
                              (uri->empty() || *uri == *FindNamespace(up, "targetNamespace"));
            return same ? replaced : nullptr;
        }
    }
    return nullptr;
}

CKTXMLElement* CKTCOBOLGenerator::findElementByName(const std::vector<CKTXMLElement*>& list,
                                                    std::string_view name) {
    for (CKTXMLElement* e : list) {
        const std::string* own = AttributeValue(e, "name");
        if (own != nullptr && *own == CKTXMLNode::getNonQualifiedName(name)) {
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
