       01  :P:-1
           PIC X(5.
       01  :P:-2 PIC 9.
       01  :P:-3
           BLANK PIC 9.
