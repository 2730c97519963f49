       01 purchaseOrder identified by "purchaseOrder" namespace is 
          "http://example.com/order" count in purchaseOrder-count.
        02 placedOn PIC X(80) identified by "placedOn" count in 
           placedOn-count.
        02 deliverBy PIC X(80) identified by "deliverBy" count in 
           deliverBy-count.
        02 customer identified by "customer" count in customer-count.
         03 full-name PIC X(40) identified by "full_name" count in 
            full-name-count.
         03 street PIC X(40) occurs 2 times identified by "street" count
             in street-count.
         03 city PIC X(40) identified by "city" count in city-count.
        02 orderLine occurs 20 times identified by "orderLine" count in 
           orderLine-count.
         03 article PIC X(8) identified by "article" count in 
            article-count.
         03 quantity PIC 9(5) identified by "quantity" count in 
            quantity-count.
         03 unitPrice identified by "unitPrice" count in 
            unitPrice-count.
          04 unitPrice-value PIC S9(7)V9(2).
          04 currencyId PIC X(3) identified by "currencyId" is attribute
              count in currencyId-count.
         03 lineNo PIC 9(18) identified by "lineNo" is attribute count 
            in lineNo-count.
        02 orderTotal identified by "orderTotal" count in 
           orderTotal-count.
         03 orderTotal-value PIC S9(7)V9(2).
         03 currencyId PIC X(3) identified by "currencyId" is attribute 
            count in currencyId-count.
        02 orderId PIC X(8) identified by "orderId" is attribute count 
           in orderId-count.
        02 urgent PIC X(80) identified by "urgent" is attribute count in
            urgent-count.

