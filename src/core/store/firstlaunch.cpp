#include "store/firstlaunch.h"

#include "store/logging.h"
#include "store/settings.h"
#include "store/store.h"

using namespace Qt::StringLiterals;

const QStringList &seedConditionGrades()
{
    static const QStringList grades = {u"Mint"_s, u"Near Mint/Mint"_s, u"Near Mint"_s, u"Very Fine/Near Mint"_s,
                                       u"Very Fine"_s, u"Fine"_s, u"Very Good/Fine"_s, u"Very Good"_s,
                                       u"Good/Very Good"_s, u"Good"_s, u"Fair/Good"_s, u"Fair"_s, u"Poor"_s};
    return grades;
}

namespace {
void seed(Store &store, Entity entity)
{
    for (const QString &grade : seedConditionGrades()) {
        Condition condition{0, grade};
        if (auto r = store.insert(entity, condition); !r)
            consoleLine(r.errorMessage());
    }
}
} // namespace

bool runFirstLaunch(Settings &settings, Store &store)
{
    // A read-only collection is looked at as it is; it is seeded once a copy of it can be written.
    if (store.isReadOnly())
        return false;
    if (settings.boolValue(SettingsKeys::AboutHasBeenLaunchedBeforeFlag)) {
        consoleLine(u"Not First Launch"_s);
        return false;
    }
    settings.setValue(SettingsKeys::AboutHasBeenLaunchedBeforeFlag, true);
    settings.sync();
    consoleLine(u"First Launch"_s);
    seed(store, Entity::VinylCondition);
    seed(store, Entity::CoverCondition);
    return true;
}
