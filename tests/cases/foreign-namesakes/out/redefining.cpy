       01 r identified by "r" namespace is "urn:m".
        02 original PIC S9(18) identified by "original".
        02 other PIC S9(18) identified by "other" namespace is "urn:o".

