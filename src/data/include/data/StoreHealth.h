#pragma once

#include "data/ReportName.h"
#include "data/StoreError.h"

#include <optional>
#include <string>
#include <vector>

#include <QObject>

namespace vantrell {

/// What can't be written and what couldn't be read, for everybody to watch. A store is well when `unsaved` is
/// absent and it isn't damaged.
class StoreHealth : public QObject {
    Q_OBJECT

  public:
    /// Why changes wait for a later save, absent when all of them are on disk.
    [[nodiscard]] const std::optional<StoreError>& unsaved() const { return unsaved_; }
    /// True from the first damage found until the store is closed: what can be read is shown, and nothing is
    /// saved or exported any more.
    [[nodiscard]] bool isDamaged() const { return damage_.has_value(); }
    /// What was found to be damaged in the file as a whole, in SQLite's words; may be empty.
    [[nodiscard]] const std::string& damage() const;
    /// Those whose stored lines can't all be read, or aren't as many as were stored: in the order in which
    /// they were found, each once.
    [[nodiscard]] const std::vector<ReportName>& damagedReports() const { return damagedReports_; }

    void setUnsaved(std::optional<StoreError> error);
    void addDamage(const std::string& words);
    void addDamagedReport(ReportName report);

  Q_SIGNALS:
    void changed();

  private:
    std::optional<StoreError> unsaved_;
    std::optional<std::string> damage_;
    std::vector<ReportName> damagedReports_;
};

}  // namespace vantrell
