       01 r identified by "r" namespace is "urn:m".
        02 a PIC X(9) identified by "a".
        02 b PIC X(1) identified by "b".
        02 c PIC X(5) identified by "c".

