#ifndef DORVEX_XMLGEN_DICTIONARYWRITER_H
#define DORVEX_XMLGEN_DICTIONARYWRITER_H

#include "xmlgen/DictionaryView.h"

/// What one kind of output makes of the items of a view, which the traversal shows it in turn: the
/// program first, then the record with what is below it.
class CKTDictionaryWriter {
public:
    CKTDictionaryWriter() = default;
    virtual ~CKTDictionaryWriter() = default;
    CKTDictionaryWriter(const CKTDictionaryWriter&) = delete;
    CKTDictionaryWriter& operator=(const CKTDictionaryWriter&) = delete;

    /// Writes what stands before the members of an item. Returns whether they are to follow; when
    /// not, the item is done.
    virtual bool Begin(const DictionaryItem& item) = 0;

    /// Writes what stands behind the members of an item whose Begin returned true.
    virtual void End(const DictionaryItem& item) = 0;

    /// Says whether the members of a group that are attributes follow the others.
    [[nodiscard]] virtual bool PutsAttributesLast() const { return false; }
};

#endif
