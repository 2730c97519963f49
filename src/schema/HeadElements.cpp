// The choice of the head elements: global elements that nothing refers to.

#include <iostream>
#include <string_view>
#include <unordered_map>

#include "schema/KTCOBOLGenerator.h"
#include "support/Console.h"

namespace {

bool IsConcreteElement(const CKTXMLElement* e) {
    const CKTXMLAttribute* abstract = e->getAttribute("abstract");
    return GeneratorKindOf(e->getName()) == GeneratorKind::Element &&
           e->getAttribute("name") != nullptr &&
           (abstract == nullptr || abstract->getValue() != "true");
}

bool IsCandidate(const CKTXMLElement* e) {
    return IsConcreteElement(e) && e->getAttribute("substitutionGroup") == nullptr;
}

void CollectCandidates(const CKTXMLSchemaDoc& doc, std::vector<CKTXMLElement*>& found) {
    for (CKTXMLElement* e : doc.OwnDeclarations()) {
        if (IsCandidate(e)) {
            found.push_back(e);
        }
    }
}

}  // namespace

CKTXMLElement* CKTCOBOLGenerator::getSchemaHeadElement(std::vector<CKTXMLElement*>& heads) {
    if (m_pDocument == nullptr || m_pDocument->getSchemaElement() == nullptr) {
        return nullptr;
    }
    const std::size_t earlier = heads.size();
    if (!m_ChosenHeads.empty()) {
        AppendChosenHeads(heads);
        return heads.size() - earlier == 1 ? heads.back() : nullptr;
    }
    CKTXMLElement* schema = m_pDocument->getSchemaElement();
    std::vector<CKTXMLElement*> candidates;
    std::unordered_set<std::string_view> referenced;
    CollectCandidates(*m_pDocument, candidates);
    CollectReferencedNames(schema, referenced);
    const bool fromImports = candidates.empty();
    for (const CKTXMLSchemaDoc* doc : ImportedDocuments()) {
        if (fromImports) {
            CollectCandidates(*doc, candidates);
        }
        CollectReferencedNames(doc->getSchemaElement(), referenced);
    }
    for (CKTXMLElement* candidate : candidates) {
        if (!referenced.contains(candidate->getAttribute("name")->getValue())) {
            heads.push_back(candidate);
        }
    }
    if (heads.size() - earlier == 1) {
        return heads.back();
    }
    if (heads.size() == earlier) {
        WriteLine(std::cerr,
                  {"Error : No schema head element found in schema definition. A non-referenced\n"
                   " global head element is required for conversion to COBOL record"});
    } else {
        WriteLine(std::cerr, {"Warning : More than one head element was found in the schema "
                              "definition. Attempting to generate multiple file definitions"});
    }
    return nullptr;
}

void CKTCOBOLGenerator::AppendChosenHeads(std::vector<CKTXMLElement*>& heads) const {
    std::unordered_map<std::string_view, CKTXMLElement*> elements;
    std::vector<const CKTXMLSchemaDoc*> documents = ImportedDocuments();
    documents.insert(documents.begin(), m_pDocument);
    for (const CKTXMLSchemaDoc* doc : documents) {
        for (CKTXMLElement* e : doc->OwnDeclarations()) {
            if (IsConcreteElement(e)) {
                elements.try_emplace(e->getAttribute("name")->getValue(), e);
            }
        }
    }
    for (const std::string& name : m_ChosenHeads) {
        const auto found = elements.find(name);
        if (found != elements.end()) {
            heads.push_back(found->second);
        } else {
            WriteLine(std::cerr, {"Error : Head element \"", name,
                                  "\" is not declared.  Element will not be converted."});
        }
    }
}

/// The imported documents in the order of the pairs, each once and none that is the main document.
std::vector<const CKTXMLSchemaDoc*> CKTCOBOLGenerator::ImportedDocuments() const {
    std::vector<const CKTXMLSchemaDoc*> documents;
    std::unordered_set<const CKTXMLSchemaDoc*> seen = {m_pDocument};
    for (const CKTXMLNamespaceSchemaPair* pair : m_pDocument->getNamespaceSchemaPairs()) {
        const CKTXMLSchemaDoc* doc = pair->getSchemaDoc();
        if (seen.insert(doc).second && doc->getSchemaElement() != nullptr) {
            documents.push_back(doc);
        }
    }
    return documents;
}

/// Adds the local names of all references below `schema` that stay within their own namespace: the
/// names for which compareElemByRefs would find something.
void CKTCOBOLGenerator::CollectReferencedNames(CKTXMLElement* schema,
                                               std::unordered_set<std::string_view>& names) const {
    std::vector<CKTXMLElement*> referring;
    schema->findElement("ref", compareElemByAttrType, referring, true);
    for (const CKTXMLElement* e : referring) {
        const std::string_view name =
            CKTXMLNode::getNonQualifiedName(e->getAttribute("ref")->getValue());
        if (!names.contains(name) && compareElemByRefs(e, name)) {
            names.insert(name);
        }
    }
}

bool CKTCOBOLGenerator::compareElemByRefs(const CKTXMLElement* e, std::string_view name) const {
    std::string ref;
    std::string own;
    std::string referenced;
    return getElementType(e) == GeneratorKind::Element && findAttrByName(e, "ref", ref) &&
           CKTXMLNode::getNonQualifiedName(ref) == CKTXMLNode::getNonQualifiedName(name) &&
           getElementNamespace(e, own) && getTypeNamespace(e, ref, referenced) && own == referenced;
}
