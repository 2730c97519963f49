        1 CUSTOMER identified by "customer" namespace is 
           "http://example.com/customer".
         2 CUST-ID pic 9(6) identified by "id" is attribute.
         2 CUST-NAME pic X(20) identified by "name".
         2 CUST-ADDRESS identified by "address".
          3 STREET pic X(30) identified by "STREET" count in 
             STREET-count.
          3 CITY pic X(25) identified by "CITY" count in CITY-count.
          3 POSTCODE pic X(8) identified by "POSTCODE" count in 
             POSTCODE-count.
         2 PHONE pic X(15) occurs 3 times identified by "phone" count in
             phone-count.
         2 BALANCE pic S9(7)V99 usage is comp-3 identified by "BALANCE" 
            count in BALANCE-count.
         2 CREDIT-LIMIT pic 9(7) usage is comp-4 identified by 
            "CREDIT-LIMIT" count in CREDIT-LIMIT-count.
         2 RATE usage is comp-1 identified by "RATE" count in 
            RATE-count.
         2 LAST-ORDER-COUNT pic 9(3) identified by "LAST-ORDER-COUNT" 
            count in LAST-ORDER-COUNT-count.
         2 LAST-ORDER occurs 0 to 12 times depending on LAST-ORDER-COUNT
             identified by "order" count in order-count.
          3 ORDER-NO pic 9(8) identified by "number" is attribute.
          3 ORDER-TOTAL pic S9(7)V99 sign is leading separate identified
              by "ORDER-TOTAL" count in ORDER-TOTAL-count.
