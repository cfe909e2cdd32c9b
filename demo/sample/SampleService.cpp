#include "sample/SampleService.h"

#include "sample/ErrorAnswers.h"
#include "sample/Lookup.h"
#include "sample/Rates.h"

#include <functional>
#include <stdexcept>
#include <utility>

#include <QAbstractHttpServer>
#include <QHostAddress>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QUrlQuery>

namespace vantrell::sample {

namespace {

constexpr std::string_view salesPath = "/v1/salesReports";
constexpr std::string_view financePath = "/v1/financeReports";
constexpr std::string_view ratesPath = "/v6/latest/USD";
constexpr std::string_view lookupPath = "/lookup";

Question questionOf(const QHttpServerRequest& request) {
    Question question{.path = request.url().path().toStdString(), .query = {}, .authorization = {}};
    question.authorization = request.value("Authorization").toStdString();
    for (const auto& [name, value] : request.query().queryItems(QUrl::FullyDecoded)) {
        question.query.emplace_back(name.toStdString(), value.toStdString());
    }
    return question;
}

std::string targetOf(const QHttpServerRequest& request) {
    return request.url().toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority).toStdString();
}

}  // namespace

/// The HTTP side: turns requests into questions and answers into responses.
class SampleService::Listener final : public QAbstractHttpServer {
  public:
    using Serve = std::function<Answer(const Question& question, std::string target)>;

    explicit Listener(Serve serve) : serve_(std::move(serve)), port_(listen(QHostAddress::LocalHost)) {
        if (port_ == 0) {
            throw std::runtime_error("the sample service can't listen on 127.0.0.1");
        }
    }

    [[nodiscard]] quint16 port() const { return port_; }

  private:
    bool handleRequest(const QHttpServerRequest& request, QTcpSocket* socket) override {
        using StatusCode = QHttpServerResponder::StatusCode;
        auto responder = makeResponder(request, socket);
        if (request.method() != QHttpServerRequest::Method::Get) {
            responder.write(StatusCode::MethodNotAllowed);
            return true;
        }
        const auto answer = serve_(questionOf(request), targetOf(request));
        responder.write(QByteArray::fromStdString(answer.body), QByteArray::fromStdString(answer.contentType),
                        static_cast<StatusCode>(answer.status));
        return true;
    }

    // Never called, since every request is handled.
    void missingHandler(const QHttpServerRequest& /*request*/, QTcpSocket* /*socket*/) override {}

    Serve serve_;
    quint16 port_;
};

SampleService::SampleService(const SampleAccount& account, const SampleAccess& access, const Clock& clock)
    : account_(account),
      clock_(clock),
      tokens_(access),
      desk_(account, access.vendorNumber),
      icons_(account.items()),
      listener_(std::make_unique<Listener>([this](const Question& question, std::string target) {
          return serve(question, std::move(target));
      })) {}

SampleService::~SampleService() = default;

std::string SampleService::origin() const {
    return "http://127.0.0.1:" + std::to_string(listener_->port());
}

Answer SampleService::serve(const Question& question, std::string target) {
    ServedRequest served;
    served.target = std::move(target);
    served.hasAuthorization = !question.authorization.empty();
    auto ordered = faults_.take();
    auto given = ordered ? *std::move(ordered) : answer(question);
    served.status = given.status;
    log_.record(std::move(served));
    return given;
}

Answer SampleService::answer(const Question& question) {
    const bool asksForSales = question.path == salesPath;
    if (!asksForSales && question.path != financePath) {
        return publicAnswer(question);
    }
    const auto now = clock_.now();
    if (tokens_.fault(question.authorization, now)) {
        return notAuthorized();
    }
    return asksForSales ? desk_.sales(question, now) : desk_.finance(question, now);
}

Answer SampleService::publicAnswer(const Question& question) {
    if (question.path == ratesPath) {
        return {200, "application/json", ratesBody()};
    }
    if (question.path == lookupPath) {
        return {200, "text/javascript; charset=utf-8",
                lookupBody(account_.items(), question.item("id"), question.item("country"), origin())};
    }
    if (auto picture = icons_.picture(question.path)) {
        return {200, "image/png", *std::move(picture)};
    }
    return noSuchPath();
}

}  // namespace vantrell::sample
