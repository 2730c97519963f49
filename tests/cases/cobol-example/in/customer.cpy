       01 CUSTOMER.
          05 CUST-ID     PIC 9(6).
          05 CUST-NAME   PIC X(20).
          05 BALANCE     PIC S9(7)V99 COMP-3.
          05 RATE        COMP-1.
