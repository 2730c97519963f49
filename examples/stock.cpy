       01  ARTICLE.
           05  ART-NO              PIC 9(8).
           05  ART-NAME            PIC X(30).
           05  UNIT-PRICE          PIC S9(5)V99 COMP-3.
           05  SHELF               OCCURS 3 TIMES.
               10  SHELF-CODE      PIC X(6).
               10  QTY-ON-SHELF    PIC 9(5).
           05  LAST-COUNTED        PIC X(10).
