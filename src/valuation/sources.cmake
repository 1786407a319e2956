# Files of this folder, relative to src/.
list(APPEND PB_SOURCES)
list(APPEND PB_QML)
