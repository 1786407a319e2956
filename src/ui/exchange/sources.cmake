# The import / export, export and import screens.
list(APPEND PB_UI_SOURCES
    exchange/exportviewcontroller.h exchange/exportviewcontroller.cpp
    exchange/importexportviewcontroller.h exchange/importexportviewcontroller.cpp
    exchange/importpreviewmodel.h exchange/importpreviewmodel.cpp
    exchange/importviewcontroller.h exchange/importviewcontroller.cpp
)
list(APPEND PB_UI_QML
    exchange/ExportView.qml
    exchange/ImportExportView.qml
    exchange/ImportPreviewTableViewCell.qml
    exchange/ImportView.qml
)
