# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    feedback/reviewservice.h feedback/reviewservice.cpp
)
list(APPEND PB_QML)
