// Partitions from the kernel's texts.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "media/KernelPartitions.h"

namespace vantor {
namespace {

class KernelPartitions : public testing::Test {
  protected:
    void put(const char* name, const QByteArray& text) const {
        const QString path = root.filePath(QStringLiteral("sys/class/block/") + QLatin1String(name));
        ASSERT_TRUE(QDir().mkpath(path.section(u'/', 0, -2)));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QStringList names(const char* disk) const {
        QStringList found;
        for (const KernelPartition& each : kernelPartitionsOf(QLatin1String(disk), root.path())) {
            found << each.name + QStringLiteral(" %1-%2").arg(each.sectors.first).arg(each.sectors.end);
        }
        return found;
    }
    const QTemporaryDir root;
};

TEST_F(KernelPartitions, AreThoseOfTheDisk_InTheirOrderOnIt) {
    put("sdb/sdb2/start", "2048\n");
    put("sdb/sdb2/size", "1000\n");
    put("sdb/sdb1/start", "4096\n");
    put("sdb/sdb1/size", "500\n");
    put("sdb/size", "100000\n");
    EXPECT_EQ(names("sdb"),
              (QStringList{QStringLiteral("sdb2 2048-3048"), QStringLiteral("sdb1 4096-4596")}));
}

TEST_F(KernelPartitions, WhatIsNoNumber_OrNoDisk_GivesNone) {
    put("sdb/sdb1/start", "12x\n");
    put("sdb/sdb1/size", "500\n");
    put("sdb/sdb2/start", "18446744073709551615\n");
    put("sdb/sdb2/size", "9\n");
    put("sdb/sdb3/start", "5\n");
    put("sdb/sdb3/size", "0\n");
    put("sdb/sdb4/start", "5\n");
    for (const char* const disk : {"sdb", "sdq", "", "../sdb", "image1"}) {
        EXPECT_EQ(names(disk), QStringList()) << disk;
    }
}

}  // namespace
}  // namespace vantor
