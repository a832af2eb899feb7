# Used by docs/Doxyfile: the comment that a header begins with is about the header as a whole.
BEGIN { first = 1 }
first && /^\/\// { sub(/^\/\/ ?/, NR == 1 ? "/// @about " : "/// ") }
!/^\/\// { first = 0 }
{ print }
