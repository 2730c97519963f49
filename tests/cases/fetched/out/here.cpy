       01 m PIC X(5) identified by "m" namespace is "urn:m".

