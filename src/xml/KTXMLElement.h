#ifndef DORVEX_XML_KTXMLELEMENT_H
#define DORVEX_XML_KTXMLELEMENT_H

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CKTDOMFormatTarget;
class CKTDOMParser;
class CKTXMLElement;
class CKTXMLFormatter;

/// The common ancestor of elements and attributes: helpers for qualified names. A tree holds few
/// names many times, so each name stands once in the process, and nodes point at it.
class CKTXMLNode {
public:
    /// The one copy of `name`; it stays where it is until the process ends.
    static const std::string* InternName(std::string_view name);

    /// The part of `name` before its first colon; empty without one. The result is a part of
    /// `name`.
    static std::string_view getNameQualifier(std::string_view name);

    /// The part of `name` after its first colon; `name` itself without one.
    static std::string_view getNonQualifiedName(std::string_view name);

protected:
    CKTXMLNode() = default;
};

/// One attribute, named as written (prefix included). Owned by its element.
class CKTXMLAttribute : public CKTXMLNode {
public:
    /// The kind of node, in the numbers of the DOM.
    static constexpr std::int32_t m_nNodeType = 2;

    CKTXMLAttribute() : CKTXMLAttribute({}, {}) {}
    CKTXMLAttribute(std::string_view name, std::string value);

    [[nodiscard]] const std::string& getName() const { return *m_pName; }
    [[nodiscard]] const std::string& getValue() const { return m_sValue; }

    /// The owning element; set by whoever adds the attribute. Null until then.
    void setParent(CKTXMLElement* parent) { m_pParent = parent; }
    [[nodiscard]] CKTXMLElement* getParent() const { return m_pParent; }

    /// The neighbours in the element's attribute list, null at its ends.
    void setPrevSibling(CKTXMLAttribute* sibling) { m_pPrevSibling = sibling; }
    [[nodiscard]] CKTXMLAttribute* getPrevSibling() const { return m_pPrevSibling; }
    void setNextSibling(CKTXMLAttribute* sibling) { m_pNextSibling = sibling; }
    [[nodiscard]] CKTXMLAttribute* getNextSibling() const { return m_pNextSibling; }

private:
    const std::string* m_pName;
    std::string m_sValue;
    CKTXMLElement* m_pParent = nullptr;
    CKTXMLAttribute* m_pPrevSibling = nullptr;
    CKTXMLAttribute* m_pNextSibling = nullptr;
};

/// One element of the program's own document tree. It owns its attributes and its child elements;
/// the root of a tree stands for the document, has an empty name, and holds the document element as
/// its first child. All other pointers are borrowed.
class CKTXMLElement : public CKTXMLNode {
public:
    static constexpr std::int32_t m_nNodeType = 1;

    /// A search test: returns the element to record (normally the one given), or null for no match.
    using Compare = CKTXMLElement* (*)(CKTXMLElement* element, const std::string& key);

    CKTXMLElement() : CKTXMLElement(std::string_view()) {}
    explicit CKTXMLElement(std::string_view name);
    virtual ~CKTXMLElement();
    CKTXMLElement(const CKTXMLElement&) = delete;
    CKTXMLElement& operator=(const CKTXMLElement&) = delete;

    [[nodiscard]] const std::string& getName() const { return *m_pName; }

    /// The text content: that of the last text child, empty without one.
    void setValue(std::string value) { m_sValue = std::move(value); }
    [[nodiscard]] const std::string& getValue() const { return m_sValue; }

    /// The namespace recorded for a global element of a schema; empty for others.
    void setNamespace(std::string_view uri);
    [[nodiscard]] const std::string& getNamespace() const { return *m_pNamespace; }

    /// The element above; null for the root. A declaration that was moved into another tree keeps
    /// the parent under which it was written.
    void setParent(CKTXMLElement* parent) { m_pParent = parent; }
    [[nodiscard]] CKTXMLElement* getParent() const { return m_pParent; }

    /// True when the element has a parent, that is, when it is not the root.
    [[nodiscard]] bool isParent() const { return m_pParent != nullptr; }

    /// The neighbours in the parent's child list, null at its ends.
    void setPrevSibling(CKTXMLElement* sibling) { m_pPrevSibling = sibling; }
    [[nodiscard]] CKTXMLElement* getPrevSibling() const { return m_pPrevSibling; }
    void setNextSibling(CKTXMLElement* sibling) { m_pNextSibling = sibling; }
    [[nodiscard]] CKTXMLElement* getNextSibling() const { return m_pNextSibling; }

    /// Makes room for `count` attributes at once.
    void reserveAttributes(std::size_t count) { m_AttrList.reserve(count); }

    /// Appends and links an attribute or a child element, whose parent the caller sets. Returns it.
    CKTXMLAttribute* addAttribute(std::unique_ptr<CKTXMLAttribute> attribute);
    CKTXMLElement* addChildElement(std::unique_ptr<CKTXMLElement> child);

    /// Takes the child elements for which `wanted` answers true out of this element, in order. They
    /// keep their parent pointer and lose their siblings; the others are linked anew.
    std::vector<std::unique_ptr<CKTXMLElement>> takeChildElements(
        const std::function<bool(const CKTXMLElement&)>& wanted);

    /// The first entry of each list, or null; and the neighbours of an entry.
    [[nodiscard]] CKTXMLAttribute* getFirstAttr() const;
    [[nodiscard]] CKTXMLElement* getFirstChildElem() const;
    static CKTXMLAttribute* getNextAttr(const CKTXMLAttribute* a) { return a->getNextSibling(); }
    static CKTXMLAttribute* getPrevAttr(const CKTXMLAttribute* a) { return a->getPrevSibling(); }
    static CKTXMLElement* getNextChildElem(const CKTXMLElement* e) { return e->getNextSibling(); }
    static CKTXMLElement* getPrevChildElem(const CKTXMLElement* e) { return e->getPrevSibling(); }

    /// The first attribute whose name as written is exactly `name`, or null.
    [[nodiscard]] CKTXMLAttribute* getAttribute(std::string_view name) const;

    /// Appends to `result` what `compare` returns for this element and, when `recursive`, for every
    /// element below it in document order; otherwise for the siblings that follow it. A null
    /// `compare` finds nothing; `result` is never cleared.
    void findElement(const std::string& key, Compare compare, std::vector<CKTXMLElement*>& result,
                     bool recursive);

    /// The parser that built the tree, through which writers reach the XML output; null for a tree
    /// that was built by hand.
    void setParser(CKTDOMParser* parser) { m_pParser = parser; }
    [[nodiscard]] CKTXMLFormatter* getXMLFormatter() const;
    [[nodiscard]] CKTDOMFormatTarget* getFormatTarget() const;

private:
    const std::string* m_pName;
    std::string m_sValue;
    const std::string* m_pNamespace;
    CKTXMLElement* m_pParent = nullptr;
    CKTXMLElement* m_pPrevSibling = nullptr;
    CKTXMLElement* m_pNextSibling = nullptr;
    std::vector<std::unique_ptr<CKTXMLAttribute>> m_AttrList;
    std::vector<std::unique_ptr<CKTXMLElement>> m_ChildList;
    CKTDOMParser* m_pParser = nullptr;
};

/// The value of the attribute whose name as written is exactly `name`, which lives as long as the
/// tree; null when it is not there.
const std::string* AttributeValue(const CKTXMLElement* e, std::string_view name);

#endif
