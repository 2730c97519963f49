       01 second PIC X(80) identified by "second" namespace is "urn:m" 
          count in second-count.

