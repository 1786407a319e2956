#include "store/recordcaptions.h"

#include "store/translations.h"

RecordCaptions RecordCaptions::translatedNow()
{
    RecordCaptions captions;
    for (QString *caption :
         {&captions.album, &captions.albumName, &captions.name, &captions.artist, &captions.yearIssued,
          &captions.releaseDate, &captions.dateReleased, &captions.recordLabel, &captions.producer,
          &captions.quantity, &captions.speed, &captions.recordSpeed, &captions.length, &captions.recordLength,
          &captions.runLength,          &captions.minutes, &captions.type, &captions.singleDouble, &captions.vinylCondition,
          &captions.coverCondition, &captions.cost, &captions.value, &captions.estimatedValue,
          &captions.totalValue, &captions.notes, &captions.notAvailable})
        *caption = translated(*caption);
    return captions;
}
