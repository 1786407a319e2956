list(APPEND PB_SOURCES
    platform/platformservices.h
    platform/desktopplatformservices.h platform/desktopplatformservices.cpp
    platform/recordingplatformservices.h platform/recordingplatformservices.cpp
)
