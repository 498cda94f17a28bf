// A table of whole rows that says what to do while it is empty.
#pragma once

#include <QTableView>

namespace vantor {

class ListTable : public QTableView {
    Q_OBJECT

  public:
    explicit ListTable(QWidget* parent = nullptr);

    // Few rows: it takes whatever room there is, and asks for little.
    QSize sizeHint() const override;
    void setModel(QAbstractItemModel* model) override;
    // Shown in the middle of the table while no row is in view; also read out then.
    void setEmptyState(const QIcon& picture, const QString& title, const QString& advice);

    // Gets the keyboard with a row at hand; stays without while no row is in view.
    void takeKeyboard();

  signals:
    // Space was pressed; the tick box of the row has changed already.
    void tickedByKeyboard();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int firstRowInView() const;  // -1 when there is none
    bool currentRowInView() const;
    bool tickCurrentRow();
    void describeState();

    QIcon m_emptyPicture;
    QString m_emptyTitle, m_emptyAdvice;
};

}  // namespace vantor
