# cmake -D SOURCE=music.svg -D MASK=icon-mask.svg -D OUTPUT=masked/music.svg -P MaskPicture.cmake
# wraps a drawing in a group clipped to the one path of the mask. Clipping in vectors keeps the edge
# smooth at every size, where masking a rendered square would need a picture library at build time.

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
set(clip "<clipPath id=\"icon-outline\"><path d=\"${outline}\"/></clipPath>")
string(REPLACE "${head}" "${head}${clip}<g clip-path=\"url(#icon-outline)\">" drawing "${drawing}")
string(REPLACE "</svg>" "</g></svg>" drawing "${drawing}")
file(WRITE ${OUTPUT} "${drawing}")
