// A table of whole rows that says what to do while it is empty.
#pragma once

#include <QTableView>

namespace vantor {

class ListTable : public QTableView {
    Q_OBJECT

  public:
    explicit ListTable(QWidget* parent = nullptr);

    // Shown in the middle of the table while it has no rows; also read out.
    void setEmptyState(const QIcon& picture, const QString& title, const QString& advice);

  signals:
    // Space was pressed; a tick box under it has changed already.
    void tickedByKeyboard();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QIcon m_emptyPicture;
    QString m_emptyTitle, m_emptyAdvice;
};

}  // namespace vantor
