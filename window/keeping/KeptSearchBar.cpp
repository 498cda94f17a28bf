// A card with a sentence and three buttons.
#include "window/keeping/KeptSearchBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "window/keeping/SearchMemory.h"
#include "window/widgets/MessageLayout.h"

namespace vantor {

namespace {

constexpr int kBarSideMargin = 16;
constexpr int kBarTopMargin = 8;
constexpr int kBarSpacing = 12;

}  // namespace

KeptSearchBar::KeptSearchBar(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("keptSearchBar"));
    setProperty("role", QStringLiteral("card"));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(kBarSideMargin, kBarTopMargin, kBarSideMargin, kBarTopMargin);
    row->setSpacing(kBarSpacing);
    label = new QLabel(this);
    label->setObjectName(QStringLiteral("keptSearchLabel"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setAccessibleDescription(tr("The remembered search"));
    row->addWidget(label);
    const auto button = [&](const char* name, const QString& text, const QString& tip) {
        auto* const made = new QPushButton(text, this);
        made->setObjectName(QString::fromLatin1(name));
        made->setToolTip(tip);
        row->addWidget(made);
        return made;
    };
    goOnButton = button("goOnWithKeptButton", tr("&Go On"),
                        tr("Search the rest of the medium; what was read is not searched again"));
    lookButton = button("lookAtKeptButton", tr("Show &What Was Found"),
                        tr("List what the search had found, without searching on"));
    forgetButton = button("forgetKeptButton", tr("&Forget"),
                          tr("Delete what is remembered of this search; files that were saved stay"));
    MessageLayout::replace(row);
    goOnButton->setAccessibleName(tr("Go on with the remembered search"));
    lookButton->setAccessibleName(tr("Show what the remembered search found"));
    forgetButton->setAccessibleName(tr("Forget the remembered search"));
}

void KeptSearchBar::offer(const SearchRecord& record) {
    label->setText(tr("Remembered search: %1").arg(wordsForSearch(record)));
    goOnButton->setVisible(!record.notes.ended);
    // Where all was read, going on does no more than that.
    lookButton->setVisible(record.notes.ended || !isReadToItsEnd(record));
}

}  // namespace vantor
