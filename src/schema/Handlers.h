#ifndef DORVEX_SCHEMA_HANDLERS_H
#define DORVEX_SCHEMA_HANDLERS_H

#include "schema/Walk.h"

/// The handlers of the walk, one for each concern. Each takes one construct into the open item and
/// answers what became of it; only a declaration is given an item that is not there yet.

/// Declarations: an item of their own, but for one that a reference has made already.
Answer TakeElement(CKTWalk& walk, CKTXMLElement* element, OpenItem& around);
Answer TakeAttribute(CKTWalk& walk, CKTXMLElement* attribute, OpenItem& around);

/// Sequences, choices, groups and attribute groups, declared or referred to: the items of their
/// members, in a group item where they repeat.
Answer TakeModelGroup(CKTWalk& walk, CKTXMLElement* group, OpenItem& around);

/// Unions: an item for each member type, the later ones redefining the first.
Answer TakeUnion(CKTWalk& walk, const CKTXMLElement* unionElement, OpenItem& open);

/// Derivations: the value or the members of the base, then their own.
Answer TakeRestriction(CKTWalk& walk, const CKTXMLElement* restriction, OpenItem& open);
Answer TakeExtension(CKTWalk& walk, const CKTXMLElement* extension, OpenItem& open);

/// Type definitions and their two kinds of content.
Answer TakeTypeDefinition(CKTWalk& walk, CKTXMLElement* definition, OpenItem& open);

#endif
