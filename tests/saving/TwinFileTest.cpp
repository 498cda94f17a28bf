// Where what was made of a broken item goes.
#include <gtest/gtest.h>

#include "saving/TwinFile.h"

namespace vantor {

TEST(TwinFile, LiesBesideItsItem_HoweverTheDestinationWasNamed) {
    for (const QString destination : {"out", "out/", ".", "../out", "/media/disk/out"}) {
        FoundItem item;
        item.type = "JPG";
        item.name = "GEN1.JPG";
        SaveOutcome saved;
        saved.saved = true;
        saved.path = destination + "/DCIM/100CANON/IMG_1.JPG";
        const TwinPlace place = placeOfTwin(std::make_shared<Destination>(destination), item, saved);
        EXPECT_EQ(place.folder, "DCIM/100CANON") << destination.toStdString();
        EXPECT_EQ(place.name, "IMG_1.JPG");
    }
}

}  // namespace vantor
