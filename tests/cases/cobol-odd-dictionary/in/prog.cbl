       ID DIVISION.
