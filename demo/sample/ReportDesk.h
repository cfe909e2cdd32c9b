#pragma once

#include "base/Instant.h"
#include "sample/Answer.h"
#include "sample/Publication.h"
#include "sample/SampleAccount.h"

#include <string>

namespace vantrell::sample {

/// Gives out the account's reports to whoever has been let in: looks at the filters, then at the version,
/// then at what is published by now. Bodies are packed with gzip.
class ReportDesk {
  public:
    /// `account` must outlive the desk.
    ReportDesk(const SampleAccount& account, std::string vendorNumber);

    [[nodiscard]] Answer sales(const Question& question, Instant now) const;
    [[nodiscard]] Answer finance(const Question& question, Instant now) const;

  private:
    [[nodiscard]] Answer report(ReportKind kind, const DateRange& days, const Question& question,
                                Instant now) const;

    const SampleAccount& account_;
    std::string vendorNumber_;
    Publication publication_;
};

}  // namespace vantrell::sample
