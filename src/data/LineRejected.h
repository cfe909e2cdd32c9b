#pragma once

#include "Sqlite.h"
#include "data/ReportName.h"

namespace vantrell {

/// A line could not be inserted: the failure, and whose line it was.
class LineRejected final : public SqliteError {
  public:
    LineRejected(const SqliteError& error, ReportName report)
        : SqliteError(error), report_(std::move(report)) {}
    [[nodiscard]] const ReportName& report() const { return report_; }

  private:
    ReportName report_;
};

}  // namespace vantrell
