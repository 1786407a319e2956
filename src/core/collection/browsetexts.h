#pragma once

#include <QString>

// Texts the browse screens show or write to the console, in one place so tests can refer
// to them. Odd spellings ("List Vinyl's", "delete") are the wording users know.
namespace BrowseTexts {
using namespace Qt::StringLiterals;

inline const QString kListTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "List Vinyl's"));
inline const QString kDeleteAction = u"delete"_s;
inline const QString kSortMenuTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort by"));
inline const QString kSortOptionsTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort Options"));
inline const QString kSortButtonTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sort"));
inline const QString kPrintButtonTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Print"));
inline const QString kGroupPlaceholder = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search By Artist"));

// Sort choices of the collection list: the value kept in SortName.
inline const QString kSortName = u"Name"_s;
inline const QString kSortYear = u"Year"_s;
inline const QString kSortRecordLabel = u"RecordLabel"_s;
inline const QString kSortArtist = u"Artist"_s;
// ... and the further ones of the table's headers.
inline const QString kSortSpeed = u"Speed"_s;
inline const QString kSortQuantity = u"Quantity"_s;
inline const QString kSortValue = u"Value"_s;
inline const QString kSortTotal = u"Total"_s;
inline const QString kSearchByName = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Search by Name"));

inline const QString kRecordNotFoundTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Not Found"));
inline const QString kRecordNotFoundMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "This record is no longer in the collection; the list has been refreshed."));
inline const QString kCantSendTextTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Can't Send Text Message"));
inline const QString kCantSendTextMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Your device is not able to send text messages."));
inline const QString kPdfNotWrittenTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Document not Created"));
inline const QString kEmptyDataSetTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Empty Data Set!"));
inline const QString kEmptyDataSetMessage = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "No Vinyl's to Print!"));

// Screens this subsystem opens.
inline const QString kEditScreen = u"EditVinylView"_s;
inline const QString kAddScreen = u"AddVinylView"_s;
} // namespace BrowseTexts
