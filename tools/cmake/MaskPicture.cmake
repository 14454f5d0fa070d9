# cmake -D SOURCE=music.svg -D MASK=icon-mask.svg -D OUTPUT=masked/music.svg -P MaskPicture.cmake
# wraps a drawing in a group that is masked by the path in the mask file. A clip path would not do:
# it clips each shape separately, and colours below shine through at the edge.

file(READ ${MASK} mask)
if(NOT mask MATCHES " d=\"([^\"]+)\"")
  message(FATAL_ERROR "${MASK} holds no path")
endif()
set(outline "${CMAKE_MATCH_1}")

file(READ ${SOURCE} drawing)
if(NOT drawing MATCHES "<svg[^>]*>")
  message(FATAL_ERROR "${SOURCE} is no SVG")
endif()
set(head "${CMAKE_MATCH_0}")
set(mask "<mask id=\"icon-outline\"><path d=\"${outline}\" fill=\"#fff\"/></mask>")
string(REPLACE "${head}" "${head}${mask}<g mask=\"url(#icon-outline)\">" drawing "${drawing}")
string(REPLACE "</svg>" "</g></svg>" drawing "${drawing}")
file(WRITE ${OUTPUT} "${drawing}")
