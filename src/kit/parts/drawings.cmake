# The drawings the activities share: pictures that regroup, a bar model, a
# fraction wall and a number line, all in one look.
target_sources(partitude_lib PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/drawingstyle.cpp ${CMAKE_CURRENT_LIST_DIR}/drawingstyle.h
  ${CMAKE_CURRENT_LIST_DIR}/picturerows.cpp ${CMAKE_CURRENT_LIST_DIR}/picturerows.h
  ${CMAKE_CURRENT_LIST_DIR}/barmodel.cpp ${CMAKE_CURRENT_LIST_DIR}/barmodel.h
  ${CMAKE_CURRENT_LIST_DIR}/fractionwall.cpp ${CMAKE_CURRENT_LIST_DIR}/fractionwall.h
  ${CMAKE_CURRENT_LIST_DIR}/numberline.cpp ${CMAKE_CURRENT_LIST_DIR}/numberline.h
  ${CMAKE_CURRENT_LIST_DIR}/placevaluedrawing.cpp ${CMAKE_CURRENT_LIST_DIR}/placevaluedrawing.h
  ${CMAKE_CURRENT_LIST_DIR}/placevaluetable.cpp ${CMAKE_CURRENT_LIST_DIR}/placevaluetable.h
)
