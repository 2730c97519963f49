       01 b identified by "b" namespace is "urn:o".
        02 a PIC S9(18) identified by "a".

