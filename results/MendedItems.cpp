#include "results/MendedItems.h"

#include "formats/Registry.h"
#include "results/MyImageObject.h"

namespace vantor {

namespace {

const Format* formatOf(const QString& type) {
    return formatFor(type.toUpper().toStdString());
}

}  // namespace

void MendedItems::clear() {
    const std::lock_guard lock(m_mutex);
    m_kept.clear();
}

void MendedItems::add(const QString& type, std::uint64_t firstSector, Mend mend) {
    const std::lock_guard lock(m_mutex);
    auto made = std::make_shared<const Mend>(std::move(mend));
    const auto [from, to] = m_kept.equal_range(firstSector);
    for (auto kept = from; kept != to; ++kept) {
        if (kept->second.type == type) {
            kept->second.mend = std::move(made);
            return;
        }
    }
    m_kept.emplace(firstSector, Kept{type, std::move(made)});
}

std::shared_ptr<const Mend> MendedItems::of(const QString& type, std::uint64_t firstSector) const {
    const std::lock_guard lock(m_mutex);
    const auto [from, to] = m_kept.equal_range(firstSector);
    for (auto kept = from; kept != to; ++kept) {
        if (kept->second.type == type || formatOf(kept->second.type) == formatOf(type)) {
            return kept->second.mend;
        }
    }
    return nullptr;
}

std::shared_ptr<const Mend> MendedItems::of(const MyImageObject& item) const {
    return item.carved().runs.empty() ? nullptr : of(item.fileType(), item.carved().runs.front().first);
}

std::shared_ptr<const Mend> MendedItems::provedOf(const MyImageObject& item) const {
    auto mend = of(item);
    return mend && mend->kind == MendKind::Completed ? mend : nullptr;
}

std::vector<std::shared_ptr<const Mend>> MendedItems::allProved() const {
    const std::lock_guard lock(m_mutex);
    std::vector<std::shared_ptr<const Mend>> proved;
    for (const auto& [first, kept] : m_kept) {
        if (kept.mend->kind == MendKind::Completed) {
            proved.push_back(kept.mend);
        }
    }
    return proved;
}

MendedItems::Counts MendedItems::counts() const {
    const std::lock_guard lock(m_mutex);
    Counts counts;
    for (const auto& [first, kept] : m_kept) {
        switch (kept.mend->kind) {
            case MendKind::Completed:
                ++counts.completed;
                break;
            case MendKind::PutTogether:
                ++counts.putTogether;
                break;
            case MendKind::Repaired:
                ++counts.repaired;
                break;
        }
    }
    return counts;
}

}  // namespace vantor
