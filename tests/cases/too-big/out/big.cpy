       01 small PIC S9(18) identified by "small".

