import QtQuick

// Round ends for a chart's value axis: about four steps of 1, 2 or 5 times a power of ten,
// the last one a little above the highest value (room for its label).
QtObject {
    property real top: 0
    // Counts step by whole numbers.
    property bool whole: false

    readonly property real step: {
        if (top <= 0)
            return 1
        const rough = top / 4
        const power = Math.pow(10, Math.floor(Math.log10(rough)))
        const fraction = rough / power
        const step = (fraction <= 1 ? 1 : fraction <= 2 ? 2 : fraction <= 5 ? 5 : 10) * power
        return whole ? Math.max(1, step) : step
    }
    readonly property real max: top <= 0 ? step : Math.ceil(top * 1.2 / step) * step
}
