# Converts the changelog to the page's HTML: a heading for each version, and a list of its changes.

function close_item() {
  if (item != "") print "    <li>" item "</li>"
  item = ""
}
function close_list() {
  close_item()
  if (listed) print "  </ul>"
  listed = 0
}

{
  gsub(/&/, "\\&amp;")
  gsub(/</, "\\&lt;")
  gsub(/>/, "\\&gt;")
}
/^## / {
  close_list()
  print "  <h3>" substr($0, 4) "</h3>"
  print "  <ul>"
  listed = 1
  next
}
!listed { next }
/^- / {
  close_item()
  item = substr($0, 3)
  next
}
/^  / { item = item " " substr($0, 3) }
END { close_list() }
