        1 SALE identified by "sale" namespace is "urn:sales" count in 
           WS-sale-count.
         88 SOLD value is 'Y'.
         2 SALE-ID pic X(4) identified by "id" namespace is "urn:sales" 
            is attribute.
         2 NOTE pic X(10) identified by "note" namespace is "urn:b&c" 
            count in WS-note-count.
         2 PARTS occurs 9 times identified by "parts" namespace is 
            "urn:parts".
          3 QTY pic 9(4) identified by "qty" is attribute.
         2 TOTAL pic 9(6) identified by "TOTAL" count in WS-TOTAL-count.
         2 STATE pic X.
         2 FILLER pic X(2) identified by "extra".
