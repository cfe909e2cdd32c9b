#pragma once

#include "base/LocalTime.h"
#include "data/SyncLogEntry.h"
#include "locale/Locale.h"
#include "screens/words/StatusLabel.h"

#include <QObject>
#include <QString>

namespace vantrell {

/// One line of the sync log.
struct SyncLogRow {
    Q_GADGET
    QML_VALUE_TYPE(syncLogRow)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString outcome MEMBER outcome)
    Q_PROPERTY(vantrell::Tone::Value tone MEMBER tone)
    Q_PROPERTY(QString message MEMBER message)
    Q_PROPERTY(QString date MEMBER date)
    Q_PROPERTY(QString copyText READ copyText)

  public:
    QString key;
    QString outcome;
    Tone::Value tone = Tone::Secondary;
    QString message;  ///< may be empty
    QString date;
    [[nodiscard]] QString copyText() const;
    bool operator==(const SyncLogRow&) const = default;
};

[[nodiscard]] SyncLogRow syncLogRow(const Locale& locale, const TimeZone& zone, const SyncLogEntry& entry);

}  // namespace vantrell
