       01 second PIC X(80) identified by "second" namespace is "urn:m".

       01 far PIC S9(18) identified by "far" namespace is "urn:o".

       01 first identified by "first" namespace is "urn:m".
        02 second PIC X(80) identified by "second".

       01 second PIC X(80) identified by "second" namespace is "urn:m".

