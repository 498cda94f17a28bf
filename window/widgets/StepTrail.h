// Shows where in the wizard one is: the steps done, the one at hand, and those to come.
#pragma once

#include <QStringList>
#include <QWidget>

namespace vantor {

class StepTrail : public QWidget {
    Q_OBJECT

  public:
    explicit StepTrail(QWidget* parent = nullptr);

    // `current` counts from 0.
    void setSteps(const QStringList& steps, int current);
    QStringList steps() const { return m_steps; }
    int current() const { return m_current; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QStringList m_steps;
    int m_current = 0;
};

}  // namespace vantor
