// Media by their paths, as a backend lists them.
#include <gtest/gtest.h>

#include "media/BackendMediaSource.h"

namespace vantor {
namespace {

class FixedBackend : public MediaBackend {
  public:
    explicit FixedBackend(QList<MediumRecord> media) : m_media(std::move(media)) {}
    std::optional<QList<MediumRecord>> list() override { return m_media; }
    void rest() override {}

  private:
    QList<MediumRecord> m_media;
};

MediumRecord medium(const QString& identifier, const QString& path) {
    MediumRecord record;
    record.path = path;
    record.facts = {{"DeviceIdentifier", identifier}};
    record.target.path = "/dev/" + identifier;
    return record;
}

TEST(BackendMediaSource, TwoMediaAtOneMountPathStayTwo) {
    std::vector<std::unique_ptr<MediaBackend>> backends;
    backends.push_back(std::make_unique<FixedBackend>(QList<MediumRecord>{
        medium("sdb1", "/media/card"), medium("sdc1", "/media/card"), medium("sdd", "/dev/sdd")}));
    BackendMediaSource source(std::move(backends));
    QStringList identifiers;
    for (const QString& path : source.mountedRemovableMedia()) {
        identifiers << source.diskInfo(path).value("DeviceIdentifier").toString();
    }
    EXPECT_EQ(identifiers, (QStringList{"sdb1", "sdc1", "sdd"}));
}

}  // namespace
}  // namespace vantor
