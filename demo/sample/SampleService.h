#pragma once

#include "base/Clock.h"
#include "sample/Answer.h"
#include "sample/Faults.h"
#include "sample/IconDesk.h"
#include "sample/ReportDesk.h"
#include "sample/RequestLog.h"
#include "sample/SampleAccount.h"
#include "sample/TokenCheck.h"

#include <memory>
#include <string>

namespace vantrell::sample {

/// An HTTP server on 127.0.0.1 that answers for the sample account as the report, exchange-rate and lookup
/// services do for a real one. It has no update to offer. Runs on the event loop of the
/// thread that creates it, and works each answer out when it is asked for.
class SampleService {
  public:
    /// Listens on any free port; throws std::runtime_error if it can't. `account` and `clock`, which says
    /// what is published by now and whether a token is still good, must outlive the service.
    SampleService(const SampleAccount& account, const SampleAccess& access, const Clock& clock);
    ~SampleService();
    SampleService(const SampleService&) = delete;
    SampleService& operator=(const SampleService&) = delete;

    /// "http://127.0.0.1:" and the port, with no slash at the end.
    [[nodiscard]] std::string origin() const;

    /// What has been asked so far.
    [[nodiscard]] RequestLog& log() { return log_; }

    /// For tests: answers out of order.
    [[nodiscard]] Faults& faults() { return faults_; }

  private:
    class Listener;

    [[nodiscard]] Answer serve(const Question& question, std::string target);
    [[nodiscard]] Answer answer(const Question& question);
    [[nodiscard]] Answer publicAnswer(const Question& question);

    const SampleAccount& account_;
    const Clock& clock_;
    TokenCheck tokens_;
    ReportDesk desk_;
    IconDesk icons_;
    RequestLog log_;
    Faults faults_;
    std::unique_ptr<Listener> listener_;
};

}  // namespace vantrell::sample
