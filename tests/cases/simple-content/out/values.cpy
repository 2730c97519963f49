       01 r identified by "r".
        02 steps identified by "steps".
         03 steps-value PIC X(20).
         03 lang PIC X(80) identified by "lang" is attribute.
        02 narrow PIC X(8) identified by "narrow".
        02 some identified by "some".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 pairs identified by "pairs".
         88 enumerator-0 value is "1 2".
         88 enumerator-1 value is "3 4".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 from-plain identified by "from-plain".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 from-unit identified by "from-unit".
         03 gauge PIC X(80) identified by "gauge" is attribute.
         03 more PIC X(80) identified by "more" is attribute.
        02 cut-unit identified by "cut-unit".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 cut-type identified by "cut-type".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 tokens identified by "tokens".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 refs identified by "refs".
         03 gauge PIC X(80) identified by "gauge" is attribute.
        02 names identified by "names".
         03 gauge PIC X(80) identified by "gauge" is attribute.

