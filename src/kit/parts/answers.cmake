# The answer parts: the answer box, the chain of boxes, the choice cards.
target_sources(partitude_lib PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/answerbox.cpp ${CMAKE_CURRENT_LIST_DIR}/answerbox.h
)
