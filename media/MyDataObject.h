// One storage medium as the media list shows it; every fact is kept as text, numbers included.
#pragma once

#include <QString>
#include <QVariantMap>
#include <memory>
#include <utility>

namespace vantor {

class MyDataObject {
  public:
    // A record with an empty `root` dictionary.
    MyDataObject() : m_root(std::make_unique<QVariantMap>()) {}

    // The designated initialiser: identifier, volume name, file system, size text, parent disk, sectors. Such
    // a record has no `root` dictionary.
    static std::unique_ptr<MyDataObject> initWithString1(const QString& identifier, const QString& andString2,
                                                         const QString& andString3, const QString& andString4,
                                                         const QString& andString5,
                                                         const QString& andString6) {
        auto record = std::unique_ptr<MyDataObject>(new MyDataObject(WithoutRoot{}));
        record->nsStrDiskIdentifier = identifier;
        record->nsStrVolName = andString2;
        record->nsStrFileSystem = andString3;
        record->nsStrSize = andString4;
        record->nsStrParentDisk = andString5;
        record->nsStrSectors = andString6;
        return record;
    }

    // A new record whose parent is set without being owned.
    static std::unique_ptr<MyDataObject> weakReferenceWithParent(MyDataObject* parent) {
        auto record = std::make_unique<MyDataObject>();
        record->setParent(parent);
        return record;
    }

    // Null for a record made by the designated initialiser.
    QVariantMap* root() const { return m_root.get(); }
    MyDataObject* parent() const { return m_parent; }
    void setParent(MyDataObject* parent) { m_parent = parent; }

    QString nsStrDiskIdentifier;
    QString nsStrVolName;
    QString nsStrFileSystem;
    QString nsStrSize;
    QString nsStrParentDisk;
    QString nsStrSectors;  // number of 512-byte sectors, decimal

  private:
    struct WithoutRoot {};
    explicit MyDataObject(WithoutRoot) {}

    std::unique_ptr<QVariantMap> m_root;
    MyDataObject* m_parent = nullptr;
};

}  // namespace vantor
