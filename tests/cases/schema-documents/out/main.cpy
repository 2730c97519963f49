       01 r identified by "r" namespace is "urn:m".
        02 a identified by "a".
         03 in-a PIC S9(18) identified by "in-a".
         03 once PIC X(80) identified by "once".
        02 b PIC X(2) identified by "b".
        02 c PIC S9(18) identified by "c".
        02 d identified by "d".
         03 e PIC X(4) identified by "e".
        02 local PIC S9(18) identified by "local" is attribute.

       01 head PIC X(80) identified by "head" namespace is "urn:m".

