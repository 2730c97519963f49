        1 CUSTOMER identified by "CUSTOMER" count in CUSTOMER-count.
         2 CUST-ID pic 9(6) identified by "CUST-ID" count in 
            CUST-ID-count.
         2 CUST-NAME pic X(20) identified by "CUST-NAME" count in 
            CUST-NAME-count.
         2 BALANCE pic S9(7)V99 usage is comp-3 identified by "BALANCE" 
            count in BALANCE-count.
         2 RATE usage is comp-1 identified by "RATE" count in 
            RATE-count.
