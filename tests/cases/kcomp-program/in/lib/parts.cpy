*> Free, as a copy file may be.
05 :P:-ID PIC X(3).
05 OLD-DATE.
   COPY "date.cob" REPLACING ==::== BY ==:P:-DATE==.
05 MY-OLD-DATE PIC XX.
