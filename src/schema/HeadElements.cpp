// The choice of the head elements: global elements that nothing refers to. References are collected
// once, as local names, instead of being searched for each candidate. A reference counts when it
// stays in its own namespace, and then for every candidate of its local name. Imported documents
// are asked for heads when the main one declares no candidate at all, not when all of its
// candidates are referred to.

#include "schema/HeadElements.h"

#include <unordered_map>
#include <unordered_set>

#include "schema/Complaints.h"
#include "schema/KTXMLSchemaDoc.h"
#include "schema/NameResolver.h"
#include "schema/SchemaVocabulary.h"

namespace {

bool IsConcreteElement(const CKTXMLElement* e) {
    const std::string* abstract = AttributeValue(e, "abstract");
    return GeneratorKindOf(e->getName()) == GeneratorKind::Element &&
           AttributeValue(e, "name") != nullptr && (abstract == nullptr || *abstract != "true");
}

/// A member of a substitution group takes its head's place in a document and is no record.
bool IsCandidate(const CKTXMLElement* e) {
    return IsConcreteElement(e) && AttributeValue(e, "substitutionGroup") == nullptr;
}

void CollectCandidates(const CKTXMLSchemaDoc& doc, std::vector<CKTXMLElement*>& found) {
    for (CKTXMLElement* e : doc.OwnDeclarations()) {
        if (IsCandidate(e)) {
            found.push_back(e);
        }
    }
}

/// The imported documents in the order of the pairs, each once and none that is the main document.
std::vector<const CKTXMLSchemaDoc*> ImportedDocuments(const CKTXMLSchemaDoc& main) {
    std::vector<const CKTXMLSchemaDoc*> documents;
    std::unordered_set<const CKTXMLSchemaDoc*> seen = {&main};
    for (const CKTXMLNamespaceSchemaPair* pair : main.getNamespaceSchemaPairs()) {
        const CKTXMLSchemaDoc* doc = pair->getSchemaDoc();
        if (seen.insert(doc).second && doc->getSchemaElement() != nullptr) {
            documents.push_back(doc);
        }
    }
    return documents;
}

/// Adds the local names of all references below `schema` that stay within their own namespace: the
/// names for which IsReferenceTo would find something.
void CollectReferencedNames(const CKTNameResolver& resolver, CKTXMLElement* schema,
                            std::unordered_set<std::string_view>& names) {
    std::vector<CKTXMLElement*> referring;
    schema->findElement("ref", compareElemByAttrType, referring, true);
    for (const CKTXMLElement* e : referring) {
        const std::string_view name = CKTXMLNode::getNonQualifiedName(*AttributeValue(e, "ref"));
        // Asked once for each name that is found: resolving a namespace climbs to the root.
        if (!names.contains(name) && IsReferenceTo(resolver, e, name)) {
            names.insert(name);
        }
    }
}

void AppendChosenHeads(const CKTXMLSchemaDoc& main, const std::vector<std::string>& chosen,
                       std::vector<CKTXMLElement*>& heads) {
    std::unordered_map<std::string_view, CKTXMLElement*> elements;
    std::vector<const CKTXMLSchemaDoc*> documents = ImportedDocuments(main);
    documents.insert(documents.begin(), &main);
    for (const CKTXMLSchemaDoc* doc : documents) {
        for (CKTXMLElement* e : doc->OwnDeclarations()) {
            if (IsConcreteElement(e)) {
                // The main schema comes first, so its declaration wins over an imported one.
                elements.try_emplace(*AttributeValue(e, "name"), e);
            }
        }
    }
    for (const std::string& name : chosen) {
        const auto found = elements.find(name);
        if (found != elements.end()) {
            heads.push_back(found->second);
        } else {
            Report<SchemaMessage::UndeclaredHead>(name);
        }
    }
}

void AppendUnreferenced(const CKTXMLSchemaDoc& main, const CKTNameResolver& resolver,
                        std::vector<CKTXMLElement*>& heads) {
    std::vector<CKTXMLElement*> candidates;
    std::unordered_set<std::string_view> referenced;
    CollectCandidates(main, candidates);
    CollectReferencedNames(resolver, main.getSchemaElement(), referenced);
    // References in imported documents count in either case.
    const bool fromImports = candidates.empty();
    for (const CKTXMLSchemaDoc* doc : ImportedDocuments(main)) {
        if (fromImports) {
            CollectCandidates(*doc, candidates);
        }
        CollectReferencedNames(resolver, doc->getSchemaElement(), referenced);
    }
    for (CKTXMLElement* candidate : candidates) {
        if (!referenced.contains(*AttributeValue(candidate, "name"))) {
            heads.push_back(candidate);
        }
    }
}

}  // namespace

void AppendHeads(const CKTXMLSchemaDoc& document, const CKTNameResolver& names,
                 const std::vector<std::string>& chosen, std::vector<CKTXMLElement*>& heads) {
    if (!chosen.empty()) {
        AppendChosenHeads(document, chosen, heads);
        return;
    }
    const std::size_t earlier = heads.size();
    AppendUnreferenced(document, names, heads);
    if (heads.size() == earlier) {
        Report<SchemaMessage::NoHead>();
    } else if (heads.size() > earlier + 1) {
        Report<SchemaMessage::SeveralHeads>();
    }
}

bool IsReferenceTo(const CKTNameResolver& names, const CKTXMLElement* e, std::string_view name) {
    const std::string* ref = AttributeValue(e, "ref");
    if (GeneratorKindOf(e->getName()) != GeneratorKind::Element || ref == nullptr ||
        CKTXMLNode::getNonQualifiedName(*ref) != CKTXMLNode::getNonQualifiedName(name)) {
        return false;
    }
    const std::string* own = names.FindNamespace(e, "targetNamespace");
    const std::string* referenced = names.FindTypeNamespace(e, *ref);
    return own != nullptr && referenced != nullptr && *own == *referenced;
}
