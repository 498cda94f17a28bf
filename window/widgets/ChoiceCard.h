// A radio button as large as the choice it stands for: picture, title and a line of explanation.
#pragma once

#include <QRadioButton>

namespace vantor {

// Tab leads to the card of its group that is chosen, also when the program chose it; the toolkit alone would
// lead back to the one that had the keyboard last.
class ChoiceCard : public QRadioButton {
    Q_OBJECT
    Q_PROPERTY(QString explanation READ explanation WRITE setExplanation)

  public:
    explicit ChoiceCard(QWidget* parent = nullptr);

    QString explanation() const { return m_explanation; }
    // Shown under the title and read out with it.
    void setExplanation(const QString& explanation);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    QRect wordsRect(int width) const;
    int heightOfWords(int width) const;

    QString m_explanation;
};

}  // namespace vantor
