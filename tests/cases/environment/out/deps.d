one.cpy: \
  main.xsd \
  DIR/with\ space/o.xsd \
  DIR/part.xsd
