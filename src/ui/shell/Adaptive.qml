pragma Singleton
import QtQuick

// The three widths every screen adapts to, kept in one place: phone (under 600 px), tablet
// (600 to 1,099 px) and desktop (1,100 px and more), and the measures that follow from them.
// A screen asks with its own width, so the same screen serves all three.
QtObject {
    readonly property int tabletWidth: 600
    readonly property int desktopWidth: 1100
    // Under this width the title bar's buttons take no more room than their captions, so a
    // screen's title keeps room beside four of them.
    readonly property int narrowWidth: 420

    // Cards and group rows are at least this wide in a grid.
    readonly property int recordCardWidth: 330
    readonly property int groupCardWidth: 290
    // The room a card keeps on each side inside its cell in a grid.
    readonly property int cardInset: 8
    // Forms and menus never grow wider than these; they are centred in the window.
    readonly property int formWidth: 720
    readonly property int narrowFormWidth: 560
    // Screens that show a document or a file's text keep lines a reader can follow.
    readonly property int documentWidth: 960
    // The release-date and list pickers as popovers beside their field.
    readonly property int popoverWidth: 380
    // One line of a mouse-wheel notch: three lines scroll a row of record cards.
    readonly property int wheelLine: 40

    function isPhone(width: real): bool {
        return width < tabletWidth
    }

    function isDesktop(width: real): bool {
        return width >= desktopWidth
    }

    function isNarrow(width: real): bool {
        return width < narrowWidth
    }

    // Columns of cards at least `cardWidth` wide with their inset on both sides: one on a phone,
    // and one beyond it too while two would make the cards narrower than promised.
    function columns(width: real, cardWidth: real): int {
        return isPhone(width) ? 1 : Math.max(1, Math.floor(width / (cardWidth + 2 * cardInset)))
    }

    // The width of a centred column that keeps `margin` on both sides and never exceeds `limit`.
    function centred(width: real, limit: real, margin: real): real {
        return Math.max(0, Math.min(width - 2 * margin, limit))
    }

    // Where a picker goes in `container`: a sheet across the bottom on a phone; beyond it a
    // popover under `anchor` (over it when there is no room below), kept inside the container.
    // Passing the scroll position of the anchor's form keeps a binding following the field.
    function pickerRect(container: Item, anchor: Item, height: real, scrolled: real): rect {
        if (!container)
            return Qt.rect(0, 0, 0, height)
        if (isPhone(container.width))
            return Qt.rect(0, container.height - height, container.width, height)
        // As wide as its field (room for the date wheels at least), centred without one.
        const w = Math.min(anchor && anchor.visible ? Math.max(anchor.width, 320) : popoverWidth,
                           popoverWidth, container.width - 16)
        if (!anchor || !anchor.visible)
            return Qt.rect((container.width - w) / 2, (container.height - height) / 2, w, height)
        const p = anchor.mapToItem(container, 0, 0)
        const below = p.y + anchor.height + 4
        const y = below + height <= container.height - 8 ? below : Math.max(8, p.y - height - 4)
        const x = Math.max(8, Math.min(p.x, container.width - w - 8))
        return Qt.rect(x, y, w, height)
    }
}
