main.cpy: \
  main.xsd \
  copies/catalog.xml \
  DIR/copies/of\ v.xsd \
  DIR/copies/inner/w.xsd \
  DIR/copies/types.xsd \
  DIR/copies/inner/code.xsd
