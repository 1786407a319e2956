#include "entry/barcodescanner.h"

#include <QVideoFrame>
#include <QtConcurrent/QtConcurrentRun>

BarcodeScanner::BarcodeScanner(QObject *parent)
    : QObject(parent)
{
    connect(&m_decode, &QFutureWatcher<std::optional<Barcode>>::finished, this, &BarcodeScanner::decodeFinished);
}

void BarcodeScanner::setVideoSink(QVideoSink *sink)
{
    if (sink == m_sink)
        return;
    if (m_sink)
        disconnect(m_sink, nullptr, this, nullptr);
    m_sink = sink;
    if (m_sink)
        connect(m_sink, &QVideoSink::videoFrameChanged, this, &BarcodeScanner::takeFrame);
    emit videoSinkChanged();
}

void BarcodeScanner::takeFrame(const QVideoFrame &frame)
{
    if (m_decoding || (m_sinceLastFrame.isValid() && m_sinceLastFrame.elapsed() < kFrameIntervalMs))
        return;
    // Converted here, not on the worker: turning a camera frame into an image may need the
    // graphics context, which belongs to this thread.
    const QImage image = frame.toImage();
    if (image.isNull())
        return;
    m_sinceLastFrame.start();
    m_decoding = true;
    m_decode.setFuture(QtConcurrent::run([image] { return BarcodeReader::read(image); }));
    emit decodingChanged();
}

void BarcodeScanner::decodeFinished()
{
    const std::optional<Barcode> barcode = m_decode.result();
    m_decoding = false;
    // A frame decoded after the camera went away is not told.
    if (barcode && m_sink && !m_told.contains(barcode->digits)) {
        m_told.insert(barcode->digits);
        emit found(barcode->digits, barcode->formatName());
    }
    emit decodingChanged();
}
