       01 r identified by "r".
        02 item PIC S9(18) occurs 5 times identified by "item".
        02 node identified by "node".
         03 v PIC S9(18) identified by "v".
        02 tree identified by "tree".
         03 w PIC S9(18) identified by "w".
        02 vehicle PIC X(80) identified by "vehicle".
        02 lang PIC X(80) identified by "lang" is attribute.

