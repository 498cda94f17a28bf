// What of a search is to be kept, chosen on the range screen.
#pragma once

#include <QFrame>
#include <QString>

class QCheckBox;
class QLabel;
class QPushButton;

namespace vantor {

class KeepingBox : public QFrame {
    Q_OBJECT

  public:
    explicit KeepingBox(QWidget* parent);

    // Which of the two there is at all; the box is hidden where there is neither.
    void offer(bool remembering, bool copying);

    // Whether another search is remembered now, whose place this one would take.
    void setReplaces(bool another);

    // How high a line of options is at least, in pixels, and what is between two of them.
    int lineHeight() const;
    static constexpr int kOptionGap = 4;

    // Where the copy goes, and what there is to say of the place; "" while none is chosen.
    void setCopyPlace(const QString& path, const QString& words);
    const QString& copyPath() const { return m_copyPath; }
    // The path of the copy that is wanted; "" where none is.
    QString wantedCopy() const;

    QCheckBox* rememberBox = nullptr;
    QCheckBox* copyBox = nullptr;
    QPushButton* copyPlaceButton = nullptr;

  private:
    QLabel* m_rememberExplanation = nullptr;
    QLabel* m_copyExplanation = nullptr;
    QString m_copyPath;
};

}  // namespace vantor
