#ifndef DORVEX_SCHEMA_GENERATORSTATE_H
#define DORVEX_SCHEMA_GENERATORSTATE_H

class CKTXMLElement;

/// What the generators of one process share: the main document's `schema` element, which is the
/// last place to find a target namespace, and the numbers of the group items named so far.
struct GeneratorProcessState {
    const CKTXMLElement* currentSchemaElement = nullptr;
    unsigned referenceGroups = 0;
    unsigned sequences = 0;
    unsigned choices = 0;
    unsigned alls = 0;
};

/// The one state of this process.
GeneratorProcessState& GeneratorState();

#endif
