#include "schema/SchemaSet.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "SchemaFiles.h"
#include "schema/KTCOBOLGenerator.h"

namespace {

struct Scenario {
    const char* name;
    std::map<std::string, std::string> files;  // "/m/main" is the main schema
    const char* reads;                         // files read for their trees, in order
    const char* declarations;  // of the main schema: kind letter, name and namespace of each
    const char* pairs;         // the imported documents with the declarations that count as theirs
};

void PrintTo(const Scenario& scenario, std::ostream* stream) {
    *stream << scenario.name;
}

std::string NamespaceOf(const CKTXMLElement* e) {
    std::string uri;
    CKTCOBOLGenerator().getElementNamespace(e, uri);
    return uri;
}

std::string Described(const std::vector<CKTXMLElement*>& declarations) {
    std::string text;
    for (const CKTXMLElement* e : declarations) {
        if (const CKTXMLAttribute* name = e->getAttribute("name")) {
            text += (text.empty() ? "" : " ") + e->getName().substr(0, 1) + ":" + name->getValue() +
                    "{" + NamespaceOf(e) + "}";
        }
    }
    return text;
}

std::string Pairs(const CKTXMLSchemaDoc& doc) {
    std::string text;
    for (const CKTXMLNamespaceSchemaPair* pair : doc.getNamespaceSchemaPairs()) {
        text += (text.empty() ? "" : ", ") + pair->getNamespaceURI() + "=" +
                Described(pair->getSchemaDoc()->OwnDeclarations());
    }
    return text;
}

std::string Declarations(const CKTXMLSchemaDoc& doc) {
    std::vector<CKTXMLElement*> all;
    for (CKTXMLElement* e = doc.getSchemaElement()->getFirstChildElem(); e != nullptr;
         e = e->getNextSibling()) {
        all.push_back(e);
    }
    return Described(all);
}

class SchemaSetTest : public testing::TestWithParam<Scenario> {};

TEST_P(SchemaSetTest, LoadsEachFileOnceInEachRole) {
    const Scenario& scenario = GetParam();
    CKTMemoryFiles files(scenario.files);
    CKTSchemaSet set(files);
    const auto root = TreeOf(scenario.files.at("/m/main"));
    const CKTCurrentSchema current(root->getFirstChildElem());
    const CKTXMLSchemaDoc doc(root.get(), nullptr, "/m/main", set);
    EXPECT_EQ(files.Reads(), scenario.reads);
    EXPECT_EQ(Declarations(doc), scenario.declarations);
    EXPECT_EQ(Pairs(doc), scenario.pairs);
}

const std::vector<Scenario> kScenarios = {
    {"IncludesBringInnerFilesFirstAndNoAttributes",
     {{"/m/main", "schema\n  include schemaLocation=a\n  element name=m"},
      {"/m/a", "schema\n  include schemaLocation=sub/b\n  element name=a\n  attribute name=lost"},
      {"/m/sub/b", "schema\n  include schemaLocation=c\n  group name=b"},
      {"/m/sub/c", "schema\n  simpleType name=c"}},
     "/m/a /m/sub/b /m/sub/c",
     "e:m{} s:c{} g:b{} e:a{}",
     ""},
    {"ADiamondGivesNothingTwice",
     {{"/m/main", "schema\n  include schemaLocation=a\n  include schemaLocation=b"},
      {"/m/a", "schema\n  include schemaLocation=c\n  element name=a"},
      {"/m/b", "schema\n  include schemaLocation=link:/m/c\n  element name=b"},
      {"/m/c", "schema\n  element name=c"}},
     "/m/a /m/c /m/b",
     "e:c{} e:a{} e:b{}",
     ""},
    {"CyclesEnd",
     {{"/m/main",
       "schema targetNamespace=u\n  include schemaLocation=a\n  import namespace=v "
       "schemaLocation=/m/v\n  element name=m"},
      {"/m/a", "schema targetNamespace=u\n  include schemaLocation=main\n  element name=a"},
      {"/m/v",
       "schema targetNamespace=v\n  import namespace=u schemaLocation=/m/main\n  include "
       "schemaLocation=v\n  element name=x"}},
     "/m/a /m/v",
     "e:m{u} e:a{u}",
     "u=e:m{u} e:a{u}, v=e:x{v}"},
    {"AnImportedFileIsBoundToEachOfItsNamespaces",
     {{"/m/main",
       "schema\n  import namespace=v schemaLocation=/m/v\n  import namespace=w "
       "schemaLocation=link:/m/v\n  import namespace=v schemaLocation=/m/v2\n  import "
       "schemaLocation=/m/unnamed\n  import namespace=gone schemaLocation=/m/gone\n  "
       "import namespace=gone schemaLocation=/m/gone"},
      {"/m/v", "schema targetNamespace=v\n  element name=x"},
      {"/m/v2", "schema targetNamespace=v\n  element name=y\n  element name=z"}},
     "/m/v /m/v2 /m/gone",
     "",
     "v=e:x{v}, w=e:x{v}, v=e:y{v} e:z{v}"},
    {"AFileWithoutNamespaceIsOfEveryNamespaceThatAdoptsIt",
     {{"/m/main",
       "schema targetNamespace=u\n  include schemaLocation=c\n  import namespace=v "
       "schemaLocation=/m/v\n  include schemaLocation=c"},
      {"/m/v",
       "schema targetNamespace=v\n  include schemaLocation=c\n  include "
       "schemaLocation=c\n  element name=x"},
      {"/m/c", "schema\n  include schemaLocation=d\n  element name=c"},
      {"/m/d", "schema xmlns=other\n  element name=d"}},
     "/m/c /m/d /m/v /m/c /m/d",
     "e:d{u} e:d{v} e:c{v} e:c{u}",
     "v=e:x{v} e:d{v} e:c{v}"},
    {"WhatAnImportedSchemaIncludesCountsAsItsOwn",
     {{"/m/main", "schema targetNamespace=u\n  import namespace=v schemaLocation=/m/v"},
      {"/m/v", "schema targetNamespace=v\n  include schemaLocation=w\n  element name=x"},
      {"/m/w", "schema targetNamespace=v\n  import namespace=y schemaLocation=y\n  element name=w"},
      {"/m/y", "schema targetNamespace=y\n  element name=y"}},
     "/m/v /m/w /m/y",
     "e:w{v}",
     "y=e:y{y}, v=e:x{v} e:w{v}"},
    {"ARedefinitionTakesThePlaceOfWhatItRedefines",
     {{"/m/main",
       "schema\n  redefine schemaLocation=a\n    element name=T\n    complexType "
       "name=Inner\n    group name=Inner\n    simpleType name=None\n    complexType"},
      {"/m/a", "schema\n  include schemaLocation=b\n  complexType name=T\n  element name=T"},
      {"/m/b", "schema\n  element name=Inner\n  complexType name=Inner\n  group name=b"}},
     "/m/a /m/b",
     "e:Inner{} c:Inner{} g:b{} e:T{} e:T{}",
     ""},
    {"ImportsCountFromTheWorkingDirectoryAndElsewhereFromTheirFile",
     {{"/m/main",
       "schema\n  import namespace=v schemaLocation=v\n  include schemaLocation=a\n  "
       "import namespace=lost schemaLocation=beside"},
      {"/m/a",
       "schema\n  import namespace=w schemaLocation=beside\n  import namespace=v "
       "schemaLocation=v"},
      {"v", "schema targetNamespace=v\n  element name=here"},
      {"/m/v", "schema targetNamespace=v"},
      {"/m/beside", "schema targetNamespace=w\n  element name=x\n  element name=y"}},
     "v /m/a /m/beside beside",
     "",
     "v=e:here{v}, w=e:x{w} e:y{w}, v=e:here{v}"},
};

INSTANTIATE_TEST_SUITE_P(Sets, SchemaSetTest, testing::ValuesIn(kScenarios),
                         [](const auto& scenario) { return scenario.param.name; });

}  // namespace
