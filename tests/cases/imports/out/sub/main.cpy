       01 r identified by "r" namespace is "urn:m".
        02 first PIC S9(18) identified by "first".
        02 included identified by "included".
         03 in-p PIC X(7) identified by "in-p".
        02 global PIC S9(18) identified by "global" namespace is "urn:o"
            is attribute.

