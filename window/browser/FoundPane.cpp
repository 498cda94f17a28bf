// A tree whose rows are made as something of theirs is found, and whose picked rows are the choice.
#include "window/browser/FoundPane.h"

#include <QDate>
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "results/CardIndex.h"
#include "results/SizeForPeople.h"
#include "results/ToldFiles.h"
#include "window/widgets/Theme.h"

namespace vantor {

namespace {

constexpr int kFacetRole = Qt::UserRole;
constexpr int kKeyRole = Qt::UserRole + 1;
constexpr int kSortRole = Qt::UserRole + 2;
constexpr int kIndentation = 14;
constexpr int kLeastTreeHeight = 72;
constexpr std::size_t kMostToldRows = 500;
const QChar kLast(0xFFFF);  // sorts behind everything

QString wordsForDay(std::int32_t day) {
    return day == 0 ? QObject::tr("Date not known")
                    : localeOfTexts().toString(
                          QDate(day / 10'000, day / 100 % 100, day % 100),
                          QObject::tr("ddd, MMM d, yyyy", "date format, as QLocale takes it"));
}

// The newest first.
QString orderOfDay(std::int32_t day) {
    return day == 0 ? QString(kLast) : QString::number(99'999'999 - day).rightJustified(8, u'0');
}

int placeFor(const QTreeWidgetItem* parent, const QString& order) {
    int first = 0;
    for (int last = parent->childCount(); first < last;) {
        const int middle = (first + last) / 2;
        if (parent->child(middle)->data(0, kSortRole).toString() < order) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

void showCount(QTreeWidgetItem* row, std::size_t count) {
    const QString words = numberForPeople(count);
    if (row->text(1) != words) {
        row->setText(1, words);
        row->setData(0, Qt::AccessibleTextRole, QStringLiteral("%1, %2").arg(row->text(0), words));
    }
}

}  // namespace

FoundPane::FoundPane(QWidget* parent)
    : QWidget(parent), m_search(new QLineEdit(this)), m_tree(new QTreeWidget(this)) {
    m_search->setPlaceholderText(tr("Search by name"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(tr("Search found items by name, also that on the card"));
    m_search->setObjectName(QStringLiteral("foundSearch"));
    m_tree->setObjectName(QStringLiteral("foundTree"));
    m_tree->setAccessibleName(tr("What was found, by type, day, camera and size"));
    m_tree->setToolTip(tr("Click to show only these; hold Ctrl for several"));
    m_tree->setColumnCount(2);
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(kIndentation);
    m_tree->setUniformRowHeights(true);
    // It takes whatever room there is, and asks for little.
    m_tree->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_tree->setMinimumHeight(kLeastTreeHeight);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::kUnit);
    layout->addWidget(m_search);
    layout->addWidget(m_tree, 1);
    begin();
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &FoundPane::takeChoice);
    connect(m_search, &QLineEdit::textChanged, this, &FoundPane::chosen);
    connect(new QShortcut(Qt::Key_Escape, m_search, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, m_search, &QLineEdit::clear);
    // A heading cannot be picked: a click on its words is as one on its arrow.
    connect(m_tree, &QTreeWidget::itemClicked, this, [](QTreeWidgetItem* row) {
        if (!(row->flags() & Qt::ItemIsSelectable)) {
            row->setExpanded(!row->isExpanded());
        }
    });
    // Whoever opens a heading waits for what is under it.
    connect(m_tree, &QTreeWidget::itemExpanded, this, &FoundPane::chosen);
}

QString FoundPane::name() const {
    return m_search->text().trimmed();
}

bool FoundPane::isSearching() const {
    return window()->focusWidget() == m_search;
}

bool FoundPane::wantsDetails() const {
    return m_days->isExpanded() || m_cameras->isExpanded() || m_sizes->isExpanded() ||
           m_pixels->isExpanded() || m_lengths->isExpanded() || !m_choice.days.empty() ||
           !m_choice.cameras.empty() || !m_choice.sizes.empty() || !m_choice.pixels.empty() ||
           !m_choice.lengths.empty();
}

QTreeWidgetItem* FoundPane::heading(Facet facet, const QString& text) {
    auto* row = new QTreeWidgetItem(m_tree, {text, QString()});
    row->setData(0, kFacetRole, static_cast<int>(facet));
    row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    if (facet != Facet::All && facet != Facet::Group) {
        row->setFlags(Qt::ItemIsEnabled);
    }
    return row;
}

void FoundPane::begin() {
    m_filling = true;
    m_tree->clear();
    m_rows.clear();
    m_choice = {};
    {
        const QSignalBlocker quiet(m_search);
        m_search->clear();
    }
    m_all = heading(Facet::All, tr("All items"));
    for (int group = 0; group < kItemGroups; ++group) {
        auto* row = heading(Facet::Group, wordsForGroup(static_cast<ItemGroup>(group)));
        row->setData(0, kKeyRole, group);
        row->setHidden(true);
    }
    m_days = heading(Facet::Days, tr("By day"));
    m_cameras = heading(Facet::Cameras, tr("By camera"));
    m_sizes = heading(Facet::Sizes, tr("By size"));
    for (QTreeWidgetItem* row : {m_days, m_cameras, m_sizes}) {
        row->setHidden(true);
    }
    m_pixels = heading(Facet::Pixels, tr("By pixels"));
    m_lengths = heading(Facet::Lengths, tr("By length"));
    for (QTreeWidgetItem* row : {m_pixels, m_lengths}) {
        row->setHidden(true);
    }
    m_told = nullptr;
    showCount(m_all, 0);
    m_all->setSelected(true);
    m_filling = false;
}

void FoundPane::put(QTreeWidgetItem* parent, Facet facet, const QVariant& key, const QString& text,
                    std::size_t count) {
    const QString name = QString::number(static_cast<int>(facet)) + u':' + key.toString();
    m_seen[name] = true;
    QTreeWidgetItem*& row = m_rows[name];
    if (row == nullptr) {
        const bool isRange = facet == Facet::Size || facet == Facet::PixelRange || facet == Facet::Length;
        const QString order = facet == Facet::Day ? orderOfDay(key.toInt())
                              : isRange           ? key.toString()
                              : text.isEmpty()    ? QString(kLast)
                                                  : text.toCaseFolded();
        row = new QTreeWidgetItem({text, QString()});
        row->setData(0, kFacetRole, static_cast<int>(facet));
        row->setData(0, kKeyRole, key);
        row->setData(0, kSortRole, order);
        row->setToolTip(0, text);
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        parent->insertChild(placeFor(parent, order), row);
    }
    showCount(row, count);
}

// Rows of which there is nothing any more; a picked one stays, since the list shows what it says.
void FoundPane::dropUnseen() {
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        if (m_seen.contains(row.key())) {
            ++row;
        } else if (row.value()->isSelected()) {
            showCount(row.value(), 0);
            ++row;
        } else {
            delete row.value();
            row = m_rows.erase(row);
        }
    }
}

void FoundPane::showFacets(const FoundFacets& facets, std::size_t all) {
    m_filling = true;
    m_seen.clear();
    showCount(m_all, all);
    std::size_t counts[kItemGroups] = {};
    int types[kItemGroups] = {};
    for (const auto& each : facets.types()) {
        counts[static_cast<int>(each.group)] += each.count;
        types[static_cast<int>(each.group)] += each.count > 0 ? 1 : 0;
    }
    QTreeWidgetItem* groups[kItemGroups];
    for (int group = 0; group < kItemGroups; ++group) {
        groups[group] = m_tree->topLevelItem(group + 1);
        groups[group]->setHidden(counts[group] == 0);
        showCount(groups[group], counts[group]);
    }
    for (const auto& each : facets.types()) {
        const int group = static_cast<int>(each.group);
        if (each.count > 0 && types[group] > 1) {
            put(groups[group], Facet::Type, each.type, each.type.isEmpty() ? tr("No type") : each.type,
                each.count);
        }
    }
    for (const auto& [day, count] : facets.days()) {
        put(m_days, Facet::Day, day, wordsForDay(day), count);
    }
    const std::map<QString, std::size_t> cameras = facets.cameras();
    for (const auto& [camera, count] : cameras) {
        put(m_cameras, Facet::Camera, camera, camera.isEmpty() ? tr("Camera not known") : camera, count);
    }
    for (int size = 0; size < kSizeClasses; ++size) {
        if (const std::size_t count = facets.sizes()[static_cast<std::size_t>(size)]; count > 0) {
            put(m_sizes, Facet::Size, size, wordsForSize(static_cast<SizeClass>(size)), count);
        }
    }
    for (int pixels = 0; pixels < kPixelClasses; ++pixels) {
        if (const std::size_t count = facets.pixels()[static_cast<std::size_t>(pixels)]; count > 0) {
            put(m_pixels, Facet::PixelRange, pixels, wordsForPixels(static_cast<PixelClass>(pixels)), count);
        }
    }
    for (int length = 0; length < kLengthClasses; ++length) {
        if (const std::size_t count = facets.lengths()[static_cast<std::size_t>(length)]; count > 0) {
            put(m_lengths, Facet::Length, length, wordsForLength(static_cast<LengthClass>(length)), count);
        }
    }
    m_lengths->setHidden(facets.lengths().front() == facets.size());
    m_pixels->setHidden(facets.pixels().front() == facets.size());  // of none they are known
    m_days->setHidden(facets.size() == 0);
    m_sizes->setHidden(facets.size() == 0);
    m_cameras->setHidden(cameras.empty() || cameras.rbegin()->first.isEmpty());  // none is known
    dropUnseen();
    m_filling = false;
}

void FoundPane::showTold(const std::vector<std::shared_ptr<const CardFile>>& files,
                         std::uint64_t beyondRoom) {
    m_filling = true;
    delete m_told;
    m_told = nullptr;
    if (!files.empty()) {
        m_told = heading(Facet::Told, tr("Only named on the card"));
        const QString words = files.size() == 1 ? tr("1 more file that only the card's directory tells of")
                                                : tr("%1 more files that only the card's directory tells of",
                                                     nullptr, pluralOf(files.size()))
                                                      .arg(numberForPeople(files.size()));
        const QString leftOut = wordsForBeyondRoom(beyondRoom);
        m_told->setToolTip(0, words + u'\n' + tr("Save All saves them too.") +
                                  (leftOut.isEmpty() ? QString() : u'\n' + leftOut));
        showCount(m_told, files.size());
        m_told->setData(0, Qt::AccessibleTextRole, words);
        for (std::size_t i = 0; i < files.size() && i < kMostToldRows; ++i) {
            auto* row = new QTreeWidgetItem(
                m_told, {originalPath(*files[i]), sizeForPeople(dataBytesOf(*files[i]), 0)});
            row->setFlags(Qt::ItemIsEnabled);
            row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
            row->setToolTip(0, row->text(0));
        }
        if (files.size() > kMostToldRows) {
            auto* row = new QTreeWidgetItem(
                m_told, {tr("and %1 more", nullptr, pluralOf(files.size() - kMostToldRows))
                             .arg(numberForPeople(files.size() - kMostToldRows))});
            row->setFlags(Qt::ItemIsEnabled);
        }
    }
    m_filling = false;
}

void FoundPane::takeChoice() {
    if (m_filling) {
        return;
    }
    m_filling = true;
    QList<QTreeWidgetItem*> picked = m_tree->selectedItems();
    // All of them is what nothing else makes less of; the row that was picked last decides.
    if (picked.size() > 1 && m_all->isSelected()) {
        if (m_tree->currentItem() == m_all) {
            m_tree->clearSelection();
            picked.clear();
        } else {
            m_all->setSelected(false);
            picked.removeAll(m_all);
        }
    }
    if (picked.isEmpty()) {
        m_all->setSelected(true);
    }
    FacetChoice choice;
    for (const QTreeWidgetItem* row : picked) {
        const QVariant key = row->data(0, kKeyRole);
        switch (static_cast<Facet>(row->data(0, kFacetRole).toInt())) {
            case Facet::Group:
                choice.groups.insert(static_cast<ItemGroup>(key.toInt()));
                break;
            case Facet::Type:
                choice.types.insert(key.toString());
                break;
            case Facet::Day:
                choice.days.insert(key.toInt());
                break;
            case Facet::Camera:
                choice.cameras.insert(key.toString());
                break;
            case Facet::Size:
                choice.sizes.insert(static_cast<SizeClass>(key.toInt()));
                break;
            case Facet::PixelRange:
                choice.pixels.insert(static_cast<PixelClass>(key.toInt()));
                break;
            case Facet::Length:
                choice.lengths.insert(static_cast<LengthClass>(key.toInt()));
                break;
            default:
                break;
        }
    }
    m_filling = false;
    if (choice != m_choice) {
        m_choice = std::move(choice);
        // What stayed only since it was picked; not from within the click.
        QTimer::singleShot(0, this, &FoundPane::dropUnseen);
        emit chosen();
    }
}

}  // namespace vantor
