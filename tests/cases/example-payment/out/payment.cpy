       01 creditTransfer identified by "creditTransfer" namespace is 
          "http://example.com/payment" count in creditTransfer-count.
        02 messageId PIC X(34) identified by "messageId" count in 
           messageId-count.
        02 createdAt PIC X(80) identified by "createdAt" count in 
           createdAt-count.
        02 debtor identified by "debtor" count in debtor-count.
         03 holder PIC X(70) identified by "holder" namespace is 
            "http://example.com/payment/types" count in holder-count.
         03 account identified by "account" namespace is 
            "http://example.com/payment/types" count in account-count.
          04 bankId PIC X(34) identified by "bankId" count in 
             bankId-count.
          04 accountNo PIC X(34) identified by "accountNo" count in 
             accountNo-count.
         03 partyId PIC 9(18) identified by "partyId" namespace is 
            "http://example.com/payment/types" is attribute count in 
            partyId-count.
        02 transfer occurs 50 times identified by "transfer" count in 
           transfer-count.
         03 creditor identified by "creditor" count in creditor-count.
          04 holder PIC X(70) identified by "holder" namespace is 
             "http://example.com/payment/types" count in holder-count.
          04 account identified by "account" namespace is 
             "http://example.com/payment/types" count in account-count.
           05 bankId PIC X(34) identified by "bankId" count in 
              bankId-count.
           05 accountNo PIC X(34) identified by "accountNo" count in 
              accountNo-count.
          04 partyId PIC 9(18) identified by "partyId" namespace is 
             "http://example.com/payment/types" is attribute count in 
             partyId-count.
         03 amount PIC S9(13)V9(2) identified by "amount" count in 
            amount-count.
         03 executeOn PIC X(80) identified by "executeOn" count in 
            executeOn-count.
         03 remittance PIC X(140) occurs 3 times identified by 
            "remittance" namespace is "http://example.com/payment/types"
             count in remittance-count.
        02 controlSum PIC S9(13)V9(2) identified by "controlSum" count 
           in controlSum-count.
        02 sender PIC X(34) identified by "sender" namespace is 
           "http://example.com/payment/types" is attribute count in 
           sender-count.
        02 testRun PIC X(80) identified by "testRun" namespace is 
           "http://example.com/payment/types" is attribute count in 
           testRun-count.

