// Errors of the system in words of the program's own.
#include <gtest/gtest.h>

#include <QSet>
#include <cerrno>
#include <cstring>

#include "media/SystemWords.h"

namespace vantor {
namespace {

TEST(SystemWords, WhatUsersMeetIsToldInOwnWords) {
    QSet<QString> told;
    for (const int error :
         {ENOSPC, EDQUOT, EROFS, EFBIG, EIO, EACCES, ENAMETOOLONG, ENOENT, ENODEV, ENOMEDIUM}) {
        const QString words = systemWords(error);
        EXPECT_NE(words, QString::fromLocal8Bit(std::strerror(error))) << error;
        EXPECT_FALSE(words.isEmpty() || words.endsWith(u'.')) << error;
        told.insert(words);
    }
    EXPECT_EQ(told.size(), 10) << "each error has words of its own";
    EXPECT_EQ(systemWords(EPERM), systemWords(EACCES));
    EXPECT_EQ(systemWords(ENXIO), systemWords(ENODEV));
}

TEST(SystemWords, OthersAreToldInTheSystems) {
    for (const int error : {EINVAL, EMFILE, EBUSY, 4095}) {
        EXPECT_EQ(systemWords(error), QString::fromLocal8Bit(std::strerror(error)));
    }
}

}  // namespace
}  // namespace vantor
