// A scan session over a scripted medium whose view writes down everything it is told.
#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "scan/ScanSession.h"
#include "tests/support/Records.h"
#include "tests/support/ScriptedMedium.h"

namespace vantor {

// What the user is told at the end of a scan whose last read failed.
inline const QString kReadError = QStringLiteral("\nError in storage media reading.");

class RecordingView : public ScanView {
  public:
    RangeControls controls;
    bool thorough = true;
    bool modal = false;
    QStringList log;  // every call, in order, with its arguments
    QStringList alerts;
    QStringList sectorLabels;
    std::vector<qsizetype> scrolls;
    std::vector<double> progress;
    int endPanels = 0;
    std::function<void(const QString& line)> onNote;  // after every line of the log; may throw

    RangeControls rangeControls(ControlSet) const override { return controls; }
    bool thoroughBoxOn(ControlSet) const override { return thorough; }
    QString destinationFolder() const override { return QStringLiteral("/destination"); }
    bool modalSessionRunning() const override { return modal; }
    void showModeLabel(const QString& text) override { note("mode: " + text); }
    void showSectorLabel(const QString& text) override {
        sectorLabels.append(text);
        note("sectors: " + text);
    }
    void showHelpInfo(const QString& text) override { note("help: " + text); }
    void setProgressRange(std::uint64_t sectors) override { note("range: " + QString::number(sectors)); }
    void startProgress() override { note("progress starts"); }
    void setProgress(double sectors) override { progress.push_back(sectors); }
    void invalidateTimer() override { note("timer invalidated"); }
    void setScanOptionsEnabled(bool enabled) override { note(enabled ? "options on" : "options off"); }
    void resetPhotoBrowser() override { note("photo browser reset"); }
    void reloadBrowser(ControlSet set) override {
        note(set == ControlSet::Photo ? "reload photo browser" : "reload raw browser");
    }
    void scrollBrowserTo(ControlSet, qsizetype index) override { scrolls.push_back(index); }
    QIcon iconForFileType(const QString& extension) override {
        note("icon: " + extension);
        return {};
    }
    void clearPreviewTitle() override { note("preview title cleared"); }
    void resultRowsChanged() override { note("rows changed"); }
    void fileTypeRowsChanged() override { note("types changed"); }
    void showAlert(const QString& message) override {
        alerts.append(message);
        note("alert: " + message);
    }
    void returnFromScanScreen(ControlSet) override { note("back from scan screen"); }
    void hideScanProgress() override { note("progress hidden"); }
    void runEndPanel(ControlSet set) override {
        ++endPanels;
        note(set == ControlSet::Photo ? "photo end panel" : "raw end panel");
    }
    void showResultControls(ControlSet) override { note("result controls"); }
    void enableAfterScan() override { note("enabled after scan"); }

  private:
    void note(const QString& line) {
        log.append(line);
        if (onNote) {
            onNote(line);
        }
    }
};

struct HandedOver {
    QString pass, name, uid;
    std::uint64_t first = 0;
    std::uint64_t end = 0;
    QByteArray data;
    CarvedRun carved;
};

class TestSession : public RecordingView, public ScanSession {
  public:
    explicit TestSession(ScriptedMedium& medium)
        : ScanSession(static_cast<ScanView&>(*this)), m_medium(medium) {
        controls.diskIdentifier = QStringLiteral("disk2");
        controls.sectors = QString::number(medium.bytes.size());
        Recovery_MODE = kPhotoMode;
        setMediumOpener([this](const QString& path) -> std::unique_ptr<SectorReader> {
            openedPaths.append(path);
            if (openingsThatSucceed-- <= 0) {
                return nullptr;
            }
            return std::make_unique<ScriptedReader>(m_medium);
        });
    }

    // Chooses the records for a raw scan, with a result row a type.
    void choose(const QStringList& general, const QStringList& thoroughRecords = {}) {
        Recovery_MODE = kRawFileMode;
        RawFile_Array = general;
        Adv_RawFile_Array = thoroughRecords;
        buildFileTypeList();
        cutCataloguesToTickedTypes();
    }

    void setRange(std::uint64_t start, std::uint64_t end) {
        controls.entireDisk = 0;
        controls.sectorRange = 1;
        controls.startText = QString::number(start);
        controls.endText = QString::number(end);
    }

    // Makes stop_now 1 just before the given read of the whole run.
    void stopBeforeRead(std::uint64_t read) {
        m_medium.beforeRead = [this, read](std::uint64_t n) {
            if (n == read) {
                stop_now = 1;
            }
        };
    }

    void addImageWithData(const QByteArray& data, const QString& imageName,
                          const QString& image_UID) override {
        handedOver.push_back({handOver().pass, imageName, image_UID, handOver().firstSector,
                              handOver().firstSector + handOver().bytes / kSectorBytes, data,
                              handOver().carved});
        handedOver.back().data.detach();
        ScanSession::addImageWithData(data, imageName, image_UID);
    }
    void addImageWithData_2(const QByteArray& data, const QString& imageName, const QString& image_UID,
                            std::uint64_t File_Start_Sec, std::uint64_t File_End_Sec) override {
        handedOver.push_back(
            {handOver().pass, imageName, image_UID, File_Start_Sec, File_End_Sec, data, handOver().carved});
        ScanSession::addImageWithData_2(data, imageName, image_UID, File_Start_Sec, File_End_Sec);
    }

    // The names of the items that were really listed.
    QStringList names() const {
        QStringList list;
        for (std::size_t i = 0; i < itemCount(); ++i) {
            list.append(itemAt(i)->imageTitle());
        }
        return list;
    }

    using ScanSession::PhotoBytes;
    PhotoBytes photoBytes = PhotoBytes::All;
    PhotoBytes photoBytesNeeded() const override { return photoBytes; }

    using ScanSession::images;
    using ScanSession::nsSIGFileInfoDataObject;
    using ScanSession::refusals;

    std::vector<HandedOver> handedOver;
    QStringList openedPaths;
    int openingsThatSucceed = 1000;

  private:
    ScriptedMedium& m_medium;
};

}  // namespace vantor
