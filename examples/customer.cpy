      * A customer as the order system keeps him.
       01  CUSTOMER.
           05  CUST-ID             PIC 9(6).
           05  CUST-NAME           PIC X(20).
           05  CUST-ADDRESS.
               10  STREET          PIC X(30).
               10  CITY            PIC X(25).
               10  POSTCODE        PIC X(8).
           05  PHONE               PIC X(15) OCCURS 3 TIMES.
           05  BALANCE             PIC S9(7)V99 COMP-3.
           05  CREDIT-LIMIT        PIC 9(7) COMP.
           05  RATE                COMP-1.
           05  LAST-ORDER-COUNT    PIC 9(3).
           05  LAST-ORDER OCCURS 0 TO 12 TIMES
                          DEPENDING ON LAST-ORDER-COUNT.
               10  ORDER-NO        PIC 9(8).
               10  ORDER-TOTAL     PIC S9(7)V99
                                  SIGN IS LEADING SEPARATE.
