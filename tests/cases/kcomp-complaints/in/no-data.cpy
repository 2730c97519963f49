       DISPLAY "no data".
