// The file-type screen: ticks, groups and search.
#include <QCheckBox>

#include "catalogue/FileKind.h"
#include "results/SizeForPeople.h"
#include "window/MyTableController.h"
#include "window/widgets/Theme.h"
#include "window/widgets/WrapLayout.h"

namespace vantor {

namespace {

const QString kExtension = QStringLiteral("Extension");
const QString kDescription = QStringLiteral("Description");
const QString kState = QStringLiteral("State");

constexpr FileKind kKinds[] = {FileKind::Document, FileKind::Archive, FileKind::Sound,
                               FileKind::Picture,  FileKind::Video,   FileKind::Other};

QString kindName(FileKind kind) {
    switch (kind) {
        case FileKind::Document:
            return QObject::tr("Documents");
        case FileKind::Archive:
            return QObject::tr("Archives");
        case FileKind::Sound:
            return QObject::tr("Sound");
        case FileKind::Picture:
            return QObject::tr("Pictures");
        case FileKind::Video:
            return QObject::tr("Video");
        case FileKind::Other:
            break;
    }
    return QObject::tr("Other");
}

// The kinds are asked for at every tick and do not change.
FileKind kindOf(const FileTypeRow& row) {
    static QHash<QString, FileKind> known;
    const QString extension = row.value(kExtension).toString();
    const auto at = known.constFind(extension);
    if (at != known.constEnd()) {
        return *at;
    }
    return *known.insert(extension, kindOfType(extension, row.value(kDescription).toString()));
}

}  // namespace

void MyTableController::Select_Unselect_Check_btn(QObject*) {
    // A click on the box when only some are ticked ticks them all.
    const bool on = _select_unselect_Chk->isChecked();
    setAllFileTypes(on);
    showTypeCounts();
}

void MyTableController::clickTable(QObject* sender) {
    if (sender != idCheckTableView || m_typeTable->identifier(m_clickedColumn) != kState) {
        return;
    }
    _select_unselect_Chk->setChecked(
        std::all_of(nsCheckedListDataObject.cbegin(), nsCheckedListDataObject.cend(), isTicked));
    showTypeCounts();
}

void MyTableController::Thro_Mode_Chk_SIG_Btn(QObject*) {
    // The box is read and has no effect of its own.
    static_cast<void>(_Thro_Mode_Chk_SIG->isChecked());
}

// A box for every kind that the list holds.
void MyTableController::buildGroupBoxes() {
    qDeleteAll(m_groupBoxes);
    m_groupBoxes.clear();
    delete typeGroups->layout();
    auto* line = new WrapLayout(typeGroups, 2 * theme::kUnit);
    for (const FileKind kind : kKinds) {
        const auto inKind = std::count_if(nsCheckedListDataObject.cbegin(), nsCheckedListDataObject.cend(),
                                          [kind](const FileTypeRow& row) { return kindOf(row) == kind; });
        auto* box = new QCheckBox(typeGroups);
        box->setObjectName(QStringLiteral("typeGroup") + kindName(kind));
        box->setText(tr("%1 (%2)").arg(kindName(kind), numberForPeople(static_cast<std::uint64_t>(inKind))));
        box->setAccessibleName(tr("All types of the group %1").arg(kindName(kind)));
        connect(box, &QCheckBox::clicked, this,
                [this, kind](bool on) { tickGroup(static_cast<int>(kind), on); });
        line->addWidget(box);
        box->setVisible(inKind > 0);
        m_groupBoxes.append(box);
    }
    showTypeCounts();
}

void MyTableController::tickGroup(int kind, bool ticked) {
    for (FileTypeRow& row : nsCheckedListDataObject) {
        if (static_cast<int>(kindOf(row)) == kind) {
            row[kState] = ticked;
        }
    }
    fileTypeRowsChanged();
    m_clickedColumn = 0;
    clickTable(idCheckTableView);
}

void MyTableController::filterFileTypes(const QString& text) {
    const QString wanted = text.trimmed();
    for (int row = 0; row < nsCheckedListDataObject.size(); ++row) {
        const FileTypeRow& type = nsCheckedListDataObject.at(row);
        const bool found = type.value(kExtension).toString().contains(wanted, Qt::CaseInsensitive) ||
                           type.value(kDescription).toString().contains(wanted, Qt::CaseInsensitive);
        idCheckTableView->setRowHidden(row, !found);
    }
    showEmptyTypes(wanted);
}

void MyTableController::showEmptyTypes(const QString& filter) {
    const bool onlyFiltered = !filter.isEmpty() && !nsCheckedListDataObject.isEmpty();
    idCheckTableView->setEmptyState(
        ownIcon(QStringLiteral("type-other")), onlyFiltered ? tr("No type matches") : tr("No file types"),
        onlyFiltered ? tr("Clear the search field to see all types.")
                     : tr("The catalogue of file types could not be read. Install the program again."));
}

void MyTableController::showTypeCounts() {
    qsizetype ticked = 0;
    QList<qsizetype> ofKind(std::size(kKinds), 0), tickedOfKind(std::size(kKinds), 0);
    for (const FileTypeRow& row : std::as_const(nsCheckedListDataObject)) {
        const auto kind = static_cast<qsizetype>(kindOf(row));
        ++ofKind[kind];
        if (isTicked(row)) {
            ++ticked;
            ++tickedOfKind[kind];
        }
    }
    typeCountLabel->setText(
        tr("%1 of %2 selected")
            .arg(numberForPeople(static_cast<std::uint64_t>(ticked)),
                 numberForPeople(static_cast<std::uint64_t>(nsCheckedListDataObject.size()))));
    for (qsizetype kind = 0; kind < m_groupBoxes.size(); ++kind) {
        QCheckBox* box = m_groupBoxes.at(kind);
        const bool all = tickedOfKind.at(kind) == ofKind.at(kind);
        const bool some = !all && tickedOfKind.at(kind) > 0;
        box->setTristate(some);
        box->setCheckState(some ? Qt::PartiallyChecked : all ? Qt::Checked : Qt::Unchecked);
    }
}

}  // namespace vantor
