// Derivation by restriction and extension. The base is walked into the same item, so that what the
// derivation itself says comes after it; a simple value is instead followed down to its built-in
// type, and the facets are applied on the way back. Conditions and attributes of the base come
// along when the base is walked; on the way down to a value they do not, because the derivation
// says them anew. A base that is named but found nowhere is reported once, and the content of the
// derivation is still taken.

#include <vector>

#include "schema/ActiveGuard.h"
#include "schema/Complaints.h"
#include "schema/Handlers.h"
#include "schema/SchemaVocabulary.h"

namespace {

GeneratorKind KindOf(const CKTXMLElement* e) {
    return GeneratorKindOf(e->getName());
}

/// What a derivation stands in; Other for one that stands in nothing.
GeneratorKind KindAbove(const CKTXMLElement* derivation) {
    return derivation->isParent() ? KindOf(derivation->getParent()) : GeneratorKind::Other;
}

CKTXMLElement* FindChild(const CKTXMLElement* e, GeneratorKind kind) {
    for (CKTXMLElement* child = e->getFirstChildElem(); child != nullptr;
         child = child->getNextSibling()) {
        if (KindOf(child) == kind) {
            return child;
        }
    }
    return nullptr;
}

/// The restriction or extension that says what a type's simple value is; null when the value is a
/// list, a union or elements.
const CKTXMLElement* FindValueDerivation(const CKTXMLElement* type) {
    const CKTXMLElement* holder = KindOf(type) == GeneratorKind::ComplexType
                                      ? FindChild(type, GeneratorKind::SimpleContent)
                                      : type;
    if (holder == nullptr) {
        return nullptr;
    }
    // There is one of the two at most.
    const CKTXMLElement* restriction = FindChild(holder, GeneratorKind::Restriction);
    return restriction != nullptr ? restriction : FindChild(holder, GeneratorKind::Extension);
}

/// While it lives, a derivation that is simple content is the innermost one.
class CKTSimpleContent {
public:
    CKTSimpleContent(CKTWalk& walk, const CKTXMLElement* derivation, OpenItem& open)
        : m_Walk(walk), m_pOuterBase(walk.SimpleBase()) {
        const GeneratorKind above = KindAbove(derivation);
        if (above == GeneratorKind::SimpleContent) {
            // By this name a list is reported, when one turns up at the end of the chain.
            walk.SetSimpleBase(AttributeValue(derivation, "base"));
            open.isSimpleContent = true;
        } else if (above == GeneratorKind::ComplexContent) {
            open.isSimpleContent = false;
        }
    }
    ~CKTSimpleContent() { m_Walk.SetSimpleBase(m_pOuterBase); }
    CKTSimpleContent(const CKTSimpleContent&) = delete;
    CKTSimpleContent& operator=(const CKTSimpleContent&) = delete;

private:
    CKTWalk& m_Walk;
    const std::string* m_pOuterBase;
};

/// The way from a type to the simple value at the end of its base chain, one step at a time.
class CKTValueChain {
public:
    CKTValueChain(CKTWalk& walk, OpenItem& open) : m_Walk(walk), m_Open(open) {}

    /// Gives the item the built-in type at the end of the chain of `type` and the facets on the
    /// way, without the attributes and condition names of the base. A list at its end is noted.
    void TakeValue(const CKTXMLElement* type) {
        m_pSimpleBase = m_Walk.SimpleBase();
        while (type != nullptr && !m_bConverted) {
            const CKTXMLElement* step = FindValueDerivation(type);
            if (step == nullptr) {
                if (FindChild(type, GeneratorKind::List) != nullptr) {
                    m_Open.NoteList(m_pSimpleBase);
                }
                return;
            }
            // A chain may lead back to itself; then the bounds of the record end it.
            if (!m_Walk.CountVisit(m_Steps.size() + 1)) {
                return;
            }
            m_Steps.push_back(step);
            type = TypeBelow(step);
        }
        // From the built-in type outwards: a later facet narrows an earlier one.
        for (auto step = m_Steps.rbegin(); m_bConverted && step != m_Steps.rend(); ++step) {
            if (KindOf(*step) == GeneratorKind::Restriction) {
                ApplyValueFacets(m_Open, **step);
            }
        }
    }

private:
    /// The type that `step` derives from; null for one of XML Schema or none.
    const CKTXMLElement* TypeBelow(const CKTXMLElement* step) {
        const std::string* base = AttributeValue(step, "base");
        // The innermost one that writes a base gives the list its name.
        if (KindAbove(step) == GeneratorKind::SimpleContent) {
            m_pSimpleBase = base;
        }
        const CKTXMLElement* anonymous = KindOf(step) == GeneratorKind::Restriction
                                             ? FindChild(step, GeneratorKind::SimpleType)
                                             : nullptr;
        if (anonymous != nullptr || base == nullptr) {
            return anonymous;
        }
        const NameMeaning& meaning = m_Walk.Names().MeaningOfBase(step, *base);
        m_bConverted = meaning.builtIn != nullptr;
        if (m_bConverted) {
            TakeBuiltIn(*m_Open.item, *meaning.builtIn);
        } else if (m_Walk.Names().IsListType(step, *base)) {
            m_Open.NoteList(m_pSimpleBase);
        }
        return meaning.declaration;
    }

    CKTWalk& m_Walk;
    OpenItem& m_Open;
    std::vector<const CKTXMLElement*> m_Steps;
    const std::string* m_pSimpleBase = nullptr;
    bool m_bConverted = false;
};

Answer WalkBaseType(CKTWalk& walk, CKTXMLElement* type, const std::string& name, OpenItem& open) {
    // Once for each item: two items may derive from one base at the same time.
    const CKTActiveGuard active(walk.TypesWalked(), CKTWalk::ActiveType(open.item, type));
    if (!active.IsFirst()) {
        Report<SchemaMessage::Recursion>(name);
        return Answer::Made;
    }
    return WithoutNothing(walk.Walk(type, open));
}

/// Takes what a restriction holds itself: an anonymous type that its facets narrow comes first,
/// then the facets, then the rest.
Answer RestrictOwnContent(CKTWalk& walk, const CKTXMLElement* restriction, OpenItem& open) {
    CKTXMLElement* anonymous = FindChild(restriction, GeneratorKind::SimpleType);
    Answer answer = anonymous == nullptr ? Answer::Made : walk.Walk(anonymous, open);
    if (answer != Answer::ItemGone) {
        walk.TakeFacets(open, *restriction);
    }
    // Attributes, and model groups of a complex restriction; facets yield nothing here.
    for (CKTXMLElement* child = restriction->getFirstChildElem();
         child != nullptr && answer != Answer::ItemGone && !walk.Records().IsGivenUp();
         child = child->getNextSibling()) {
        if (child != anonymous) {
            answer = walk.Walk(child, open);
        }
    }
    return WithoutNothing(answer);
}

Answer RestrictNamedType(CKTWalk& walk, const CKTXMLElement* restriction, CKTXMLElement* base,
                         const std::string& name, OpenItem& open) {
    // What a restriction of a complex type holds is the whole of its content. Only without content
    // of its own, or above a simple base, is the base walked.
    const CKTXMLElement* first = restriction->getFirstChildElem();
    const bool complexBase = KindOf(base) == GeneratorKind::ComplexType;
    if (first != nullptr && (complexBase || KindOf(first) == GeneratorKind::SimpleType)) {
        if (complexBase && open.isSimpleContent) {
            CKTValueChain(walk, open).TakeValue(base);
        }
        return RestrictOwnContent(walk, restriction, open);
    }
    const Answer answer = WalkBaseType(walk, base, name, open);
    if (answer != Answer::ItemGone) {
        walk.TakeFacets(open, *restriction);
    }
    return answer;
}

}  // namespace

Answer TakeRestriction(CKTWalk& walk, const CKTXMLElement* restriction, OpenItem& open) {
    const CKTSimpleContent simpleContent(walk, restriction, open);
    const std::string* base = AttributeValue(restriction, "base");
    if (base == nullptr) {
        return RestrictOwnContent(walk, restriction, open);
    }
    CKTNameResolver& names = walk.Names();
    const NameMeaning& meaning = names.MeaningOfBase(restriction, *base);
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(*open.item, *meaning.builtIn);
        walk.TakeFacets(open, *restriction);
        return Answer::Made;
    }
    if (names.IsListType(restriction, *base)) {
        open.NoteList(walk.SimpleBase());
        // Nothing is to be found below a type that leaves everything open, and nothing is wrong.
    } else if (!names.IsOpenType(restriction, *base)) {
        if (meaning.declaration != nullptr) {
            return RestrictNamedType(walk, restriction, meaning.declaration, *base, open);
        }
        Report<SchemaMessage::MissingReference>(*base);
    }
    return walk.WalkChildren(restriction, open);
}

Answer TakeExtension(CKTWalk& walk, const CKTXMLElement* extension, OpenItem& open) {
    const CKTSimpleContent simpleContent(walk, extension, open);
    const std::string* base = AttributeValue(extension, "base");
    if (base == nullptr) {
        return Answer::Made;
    }
    CKTNameResolver& names = walk.Names();
    const NameMeaning& meaning = names.MeaningOfBase(extension, *base);
    Answer answer = Answer::Made;
    if (meaning.builtIn != nullptr) {
        TakeBuiltIn(*open.item, *meaning.builtIn);
    } else if (names.IsListType(extension, *base)) {
        open.NoteList(walk.SimpleBase());
    } else if (!names.IsOpenType(extension, *base)) {
        if (meaning.declaration == nullptr) {
            Report<SchemaMessage::MissingReference>(*base);
            return Answer::Nothing;
        }
        answer = WalkBaseType(walk, meaning.declaration, *base, open);
    }
    return answer == Answer::ItemGone ? answer : walk.WalkChildren(extension, open);
}
