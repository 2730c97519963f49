#ifndef DORVEX_XML_TREEBUILDER_H
#define DORVEX_XML_TREEBUILDER_H

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/util/RefVectorOf.hpp>

class CKTDOMParser;
class CKTXMLElement;

/// Builds an element tree from what a reader comes across, or nothing. It may build any number of
/// trees, one after the other, and keeps the names that it has converted.
class CKTTreeBuilder {
public:
    using Attributes = xercesc::RefVectorOf<xercesc::XMLAttr>;

    /// What comes next goes below `root` (borrowed); null builds nothing. `owner` is the parser
    /// that the elements name. In a schema the blanks around names and locations are left off.
    void BuildBelow(CKTXMLElement* root, CKTDOMParser* owner, bool isSchema);

    /// Begins an element with the first `count` of `attributes`, inside the one that is open. An
    /// empty prefix is none.
    void BeginElement(std::u16string_view prefix, std::u16string_view localName,
                      const Attributes& attributes, XMLSize_t count);
    void EndElement();

    /// Appends to the run of characters that is coming in.
    void AddText(const XMLCh* text, XMLSize_t length);

    /// Gives the open element the run of characters that has come in as its value.
    void EndText();

private:
    /// Lets a look-up go without a copy of the name.
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::u16string_view text) const {
            return std::hash<std::u16string_view>()(text);
        }
    };

    /// The narrow form of a name, which lives as long as the process.
    const std::string* NarrowName(std::u16string_view name);
    void AddAttributes(CKTXMLElement& element, const Attributes& attributes, XMLSize_t count);

    CKTXMLElement* m_pCurrent = nullptr;
    CKTDOMParser* m_pOwner = nullptr;
    bool m_bSchema = false;
    bool m_bInText = false;
    std::u16string m_sText;
    std::u16string m_sQualifiedName;
    std::vector<const xercesc::XMLAttr*> m_Sorted;
    std::unordered_map<std::u16string, const std::string*, TextHash, std::equal_to<>> m_Names;
};

#endif
