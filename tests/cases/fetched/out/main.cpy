       01 m identified by "m" namespace is "urn:m".
        02 code PIC X(7) identified by "code".
        02 size PIC X(9) identified by "size" namespace is "urn:v".

