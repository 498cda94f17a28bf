// Letting the card go once all is saved.
#include "window/MyTableController.h"
#include "window/preview/CellPictures.h"
#include "window/widgets/Alerts.h"

namespace vantor {

bool MyTableController::canEjectCard() const {
    return m_parts.canEject && m_parts.eject && !scanRunning() && m_parts.canEject(devicePath());
}

// Whoever looks at its items beside the window stops meanwhile.
void MyTableController::ejectCard() {
    const auto refusal = std::make_shared<QString>();
    session = true;
    m_looks->rest(true);
    m_pictures->rest(true);
    runBeside([eject = m_parts.eject, device = devicePath(), refusal] { *refusal = eject(device); });
    session = false;
    if (m_ending) {
        return;
    }
    m_looks->rest(false);
    m_pictures->rest(false);
    if (refusal->isEmpty()) {
        runAlert({QStringLiteral("\n") + tr("The card can be taken out."),
                  {},
                  {QStringLiteral("OK")},
                  0,
                  QStringLiteral("ok")},
                 window);
        return;
    }
    tellFailure(tr("The card could not be ejected."), *refusal, window);
}

}  // namespace vantor
