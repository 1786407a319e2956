#pragma once

#include <QString>

// Texts the browse screens show or write to the console, in one place so tests can refer
// to them. Odd spellings ("List Vinyl's", "delete") are the wording users know.
namespace BrowseTexts {
using namespace Qt::StringLiterals;

inline const QString kListTitle = u"List Vinyl's"_s;
inline const QString kDeleteAction = u"delete"_s;
inline const QString kSortMenuTitle = u"Sort by"_s;
inline const QString kSortOptionsTitle = u"Sort Options"_s;
inline const QString kSortButtonTitle = u"Sort"_s;
inline const QString kPrintButtonTitle = u"Print"_s;
inline const QString kHeaderPrefix = u"# Vinyl Records = "_s;
inline const QString kHeaderOf = u" of "_s;
inline const QString kGroupPlaceholder = u"Search By Artist"_s;

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
inline const QString kSearchByName = u"Search by Name"_s;

inline const QString kRecordNotFoundTitle = u"Record Not Found"_s;
inline const QString kRecordNotFoundMessage = u"This record is no longer in the collection; the list has been refreshed."_s;
inline const QString kCantSendTextTitle = u"Can't Send Text Message"_s;
inline const QString kCantSendTextMessage = u"Your device is not able to send text messages."_s;
inline const QString kPdfNotWrittenTitle = u"Document not Created"_s;
inline const QString kEmptyDataSetTitle = u"Empty Data Set!"_s;
inline const QString kEmptyDataSetMessage = u"No Vinyl's to Print!"_s;

// Screens this subsystem opens.
inline const QString kEditScreen = u"EditVinylView"_s;
inline const QString kAddScreen = u"AddVinylView"_s;
} // namespace BrowseTexts
