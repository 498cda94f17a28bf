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

// Whom the search field hides is left as it is.
void MyTableController::Select_Unselect_Check_btn(QObject*) {
    const bool on = _select_unselect_Chk->isChecked();
    if (typeSearchField->text().trimmed().isEmpty()) {
        setAllFileTypes(on);
    } else {
        tickShown(on, [](const FileTypeRow&) { return true; });
    }
    showSelectAllState();
    showTypeCounts();
}

void MyTableController::clickTable(QObject* sender) {
    if (sender != idCheckTableView || m_typeTable->identifier(m_clickedColumn) != kState) {
        return;
    }
    showSelectAllState();
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
        const bool known = std::any_of(nsCheckedListDataObject.cbegin(), nsCheckedListDataObject.cend(),
                                       [kind](const FileTypeRow& row) { return kindOf(row) == kind; });
        auto* box = new QCheckBox(typeGroups);
        box->setObjectName(QStringLiteral("typeGroup") + kindName(kind));
        box->setAccessibleName(tr("All types of the group %1").arg(kindName(kind)));
        connect(box, &QCheckBox::clicked, this, [this, kind](bool on) {
            tickShown(on, [kind](const FileTypeRow& row) { return kindOf(row) == kind; });
            showSelectAllState();
            showTypeCounts();
        });
        line->addWidget(box);
        box->setVisible(known);
        m_groupBoxes.append(box);
    }
    buildPresetMenu();
    showTypeCounts();
}

bool MyTableController::isTypeShown(qsizetype row) const {
    return !idCheckTableView->isRowHidden(static_cast<int>(row));
}

void MyTableController::tickShown(bool ticked, const std::function<bool(const FileTypeRow&)>& belongs) {
    for (qsizetype row = 0; row < nsCheckedListDataObject.size(); ++row) {
        if (isTypeShown(row) && belongs(nsCheckedListDataObject.at(row))) {
            nsCheckedListDataObject[row][kState] = ticked;
        }
    }
    fileTypeRowsChanged();
}

// On when all are ticked, also when there are none; off and mixed when some are.
void MyTableController::showSelectAllState() {
    qsizetype shown = 0, ticked = 0;
    for (qsizetype row = 0; row < nsCheckedListDataObject.size(); ++row) {
        shown += isTypeShown(row) ? 1 : 0;
        ticked += isTypeShown(row) && isTicked(nsCheckedListDataObject.at(row)) ? 1 : 0;
    }
    _select_unselect_Chk->setChecked(ticked == shown);
    _select_unselect_Chk->setMixed(ticked > 0 && ticked < shown);
    _select_unselect_Chk->setEnabled(shown > 0 || nsCheckedListDataObject.isEmpty());
}

void MyTableController::filterFileTypes(const QString& text) {
    const QString wanted = text.trimmed();
    for (int row = 0; row < nsCheckedListDataObject.size(); ++row) {
        const FileTypeRow& type = nsCheckedListDataObject.at(row);
        const bool found = type.value(kExtension).toString().contains(wanted, Qt::CaseInsensitive) ||
                           type.value(kDescription).toString().contains(wanted, Qt::CaseInsensitive);
        idCheckTableView->setRowHidden(row, !found);
    }
    _select_unselect_Chk->setText(wanted.isEmpty() ? tr("Select &all") : tr("Select &all shown"));
    showSelectAllState();
    showTypeCounts();
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
    for (qsizetype at = 0; at < nsCheckedListDataObject.size(); ++at) {
        const FileTypeRow& row = nsCheckedListDataObject.at(at);
        const auto kind = static_cast<qsizetype>(kindOf(row));
        const int shown = isTypeShown(at) ? 1 : 0;
        ofKind[kind] += shown;
        tickedOfKind[kind] += isTicked(row) ? shown : 0;
        ticked += isTicked(row) ? 1 : 0;
    }
    typeCountLabel->setText(
        tr("%1 of %2 selected")
            .arg(numberForPeople(static_cast<std::uint64_t>(ticked)),
                 numberForPeople(static_cast<std::uint64_t>(nsCheckedListDataObject.size()))));
    for (qsizetype kind = 0; kind < m_groupBoxes.size(); ++kind) {
        QCheckBox* box = m_groupBoxes.at(kind);
        box->setText(tr("%1 (%2)").arg(kindName(static_cast<FileKind>(kind)),
                                       numberForPeople(static_cast<std::uint64_t>(ofKind.at(kind)))));
        box->setEnabled(ofKind.at(kind) > 0);
        const bool all = ofKind.at(kind) > 0 && tickedOfKind.at(kind) == ofKind.at(kind);
        const bool some = !all && tickedOfKind.at(kind) > 0;
        box->setTristate(some);
        box->setCheckState(some ? Qt::PartiallyChecked : all ? Qt::Checked : Qt::Unchecked);
    }
}

}  // namespace vantor
