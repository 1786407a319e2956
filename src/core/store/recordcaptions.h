#pragma once

#include <QString>

// The captions that lead the lines about a record on cards, rows, shared texts and reports,
// in the user's language. A list or a document takes them once (translatedNow) rather than
// translating a caption for every line it writes: a report has tens of thousands of lines.
// Default-made, they are the English source texts.
struct RecordCaptions
{
    QString album = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album: "));
    QString albumName = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Album Name: "));
    QString name = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Name: "));
    QString artist = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Artist: "));
    QString yearIssued = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Year Issued: "));
    QString releaseDate = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Release Date: "));
    QString dateReleased = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Date Released: "));
    QString recordLabel = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Label: "));
    QString producer = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Producer: "));
    QString quantity = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Quantity: "));
    QString speed = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Speed: "));
    QString recordSpeed = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Speed: "));
    QString length = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Length: "));
    QString recordLength = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Record Length (min): "));
    QString runLength = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Run Length (min): "));
    QString minutes = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", " min"));
    QString type = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Type: "));
    QString singleDouble = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Single/Double: "));
    QString vinylCondition = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Vinyl Condition: "));
    QString coverCondition = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cover Condition: "));
    QString cost = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cost: "));
    QString value = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Value: "));
    QString estimatedValue = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Est. Value: "));
    QString totalValue = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Total Value: "));
    QString notes = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Notes: "));
    QString notAvailable = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "N/A"));

    [[nodiscard]] static RecordCaptions translatedNow();
};
