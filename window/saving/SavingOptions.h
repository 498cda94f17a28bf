// The panel in which the user says how found items are saved.
#pragma once

#include "saving/SavePolicy.h"
#include "window/panels/Panels.h"

class QString;

namespace Ui {
class SavingOptions;
}

namespace vantor {

// As the user chose it; the settings of a fresh start are those that fit nearly everybody.
struct SavingChoices {
    SavePolicy policy;
    bool report = true;
};

// How many of the choices differ from those of a fresh start.
int changedChoices(const SavingChoices& choices);

class SavingOptions : public Panel {
    Q_OBJECT

  public:
    explicit SavingOptions(QWidget* parent);
    ~SavingOptions() override;

    // Shows the choices and takes over what the user makes of them; false when it was cancelled.
    bool ask(SavingChoices& choices);

  private:
    void show(const SavingChoices& choices);
    SavingChoices chosen() const;

    std::unique_ptr<Ui::SavingOptions> m_ui;
};

}  // namespace vantor
