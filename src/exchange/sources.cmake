# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    exchange/exchangeformat.h exchange/exchangeformat.cpp
    exchange/exchangewriter.h exchange/exchangewriter.cpp
    exchange/exchangereader.h exchange/exchangereader.cpp
    exchange/csv.h exchange/csv.cpp
    exchange/fileattributes.h exchange/fileattributes.cpp
    exchange/importfile.h exchange/importfile.cpp
    exchange/discogscsv.h exchange/discogscsv.cpp
    exchange/collectioncsv.h exchange/collectioncsv.cpp
    exchange/importmerge.h exchange/importmerge.cpp
    exchange/importpreviewmodel.h exchange/importpreviewmodel.cpp
    exchange/exportviewcontroller.h exchange/exportviewcontroller.cpp
    exchange/importviewcontroller.h exchange/importviewcontroller.cpp
    exchange/importexportviewcontroller.h exchange/importexportviewcontroller.cpp
)
list(APPEND PB_QML
    exchange/ImportExportView.qml
    exchange/ExportView.qml
    exchange/ImportView.qml
    exchange/ImportPreviewTableViewCell.qml
)
