       01 P-order identified by "order" count in order-count.
        02 P-Order-1 PIC S9(18) identified by "Order" count in 
           Order-1-count.
        02 P-item PIC S9(18) identified by "item" count in item-count.
        02 P-ITEM-1 PIC S9(18) identified by "ITEM" count in 
           ITEM-1-count.
        02 P-group identified by "group" count in group-count.
         03 P-Item-2 PIC S9(18) identified by "Item" count in 
            Item-2-count.
         03 P-item-1-1 PIC S9(18) identified by "item-1" count in 
            item-1-1-count.
         03 P-Unwritable PIC S9(18) identified by "Unwritable" count in 
            Unwritable-count.
         03 P-order-1-1 PIC S9(18) identified by "order-1" count in 
            order-1-1-count.
        02 P-letter identified by "letter" count in letter-count.
         88 P-enumerator-0-1 value is "A".
         03 P-letter-value PIC X(80).

