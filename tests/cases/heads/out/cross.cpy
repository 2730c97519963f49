       01 a PIC S9(18) identified by "a" namespace is "urn:m".

       01 c PIC S9(18) identified by "c" namespace is "urn:m".

       01 d identified by "d" namespace is "urn:m".
        02 c PIC X(80) identified by "c" namespace is "urn:o".

