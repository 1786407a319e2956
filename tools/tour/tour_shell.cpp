// The main menu, the reference-lists menu and the settings screen.
#include "shell/appdelegate.h"
#include "shell/mainmenuviewcontroller.h"
#include "shell/screencontroller.h"
#include "store/settings.h"
#include "tour.h"

#include <QQuickItem>
#include <QVariant>

using namespace Qt::StringLiterals;

void addShellSteps(QList<TourStep> &steps)
{
    steps.append({u"main-menu-folded.png"_s, [](TourContext &c) { c.home(); }});
    steps.append({u"main-menu-unfolded.png"_s, [](TourContext &c) {
                      c.home();
                      if (auto *menu = qobject_cast<MainMenuViewController *>(c.topController()))
                          menu->HandleButtonClick();
                      c.settle(600);
                  }});
    steps.append({u"reference-lists.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"ReferenceListsView"_s);
                  }});
    steps.append({u"settings.png"_s, [](TourContext &c) {
                      c.home();
                      c.show(u"DefaultsView"_s);
                  }});
    // The picker opens from the default-date field, which shows while a default date is used;
    // the setting is put back so the record forms of later steps start without one.
    steps.append({u"settings-date-picker.png"_s, [](TourContext &c) {
                      c.home();
                      Settings &settings = c.app().settings();
                      settings.setValue(SettingsKeys::UseDefaultDate, true);
                      c.show(u"DefaultsView"_s);
                      if (QObject *screen = c.topScreen())
                          screen->setProperty("pickerOpen", true);
                      c.settle(600);
                      settings.setValue(SettingsKeys::UseDefaultDate, false);
                  }});
}
