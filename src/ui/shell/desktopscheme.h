#pragma once

#include <QObject>
#include <QVariant>

#include <optional>

class QPalette;

// Whether the desktop asks for dark windows. The settings portal of the session bus answers
// first (its "color-scheme": 1 dark, 2 light, 0 no preference), asked without waiting for it and
// followed when it changes; without an answer the window colour of the platform palette decides,
// followed when the palette changes. Nothing here waits for the bus. Only this class talks to
// the bus (desktopscheme.cpp is built on its own with Qt DBus): the rest of the window does not.
class DesktopScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopScheme(QObject *parent = nullptr);

    [[nodiscard]] bool dark() const;

    // The portal's value (a number, perhaps wrapped in D-Bus variants): true for dark, false for
    // light, nothing for no preference or anything else.
    [[nodiscard]] static std::optional<bool> darkFromPortal(const QVariant &value);
    // A palette whose window colour is more dark than light.
    [[nodiscard]] static bool darkPalette(const QPalette &palette);

signals:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void askPortal();
    void setPortalAnswer(std::optional<bool> dark);

    std::optional<bool> m_portal;
    bool m_dark = false;
};
