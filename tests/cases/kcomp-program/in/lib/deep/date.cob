      * The day.
           10 ::-Y PIC 9(4).
           10 ::-M PIC 99.
