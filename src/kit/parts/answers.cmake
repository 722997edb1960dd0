# The answer parts: the answer box, the chain of boxes, the choice cards.
target_sources(partitude_lib PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/answerbox.cpp ${CMAKE_CURRENT_LIST_DIR}/answerbox.h
  ${CMAKE_CURRENT_LIST_DIR}/answerchain.cpp ${CMAKE_CURRENT_LIST_DIR}/answerchain.h
  ${CMAKE_CURRENT_LIST_DIR}/choicecard.cpp ${CMAKE_CURRENT_LIST_DIR}/choicecard.h
  ${CMAKE_CURRENT_LIST_DIR}/choicecards.cpp ${CMAKE_CURRENT_LIST_DIR}/choicecards.h
)
