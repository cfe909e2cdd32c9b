#include "sample/ErrorAnswers.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantrell::sample {

namespace {

Answer error(int status, std::string_view code, std::string_view title, std::string_view detail) {
    const QJsonObject entry{{QStringLiteral("status"), QString::number(status)},
                            {QStringLiteral("code"), QString::fromUtf8(code)},
                            {QStringLiteral("title"), QString::fromUtf8(title)},
                            {QStringLiteral("detail"), QString::fromUtf8(detail)}};
    const QJsonObject envelope{{QStringLiteral("errors"), QJsonArray{entry}}};
    return {status, "application/json", QJsonDocument{envelope}.toJson(QJsonDocument::Compact).toStdString()};
}

Answer notFound(int status, std::string_view detail) {
    return error(status, "NOT_FOUND", "The specified resource does not exist", detail);
}

std::string_view publicationRule(ReportKind kind) {
    switch (kind) {
        case ReportKind::daily:
            return "Daily reports for the Americas are available by 5 am Pacific Time; Japan, Australia, and "
                   "New "
                   "Zealand by 5 am Japan Standard Time; and 5 am Central European Time for all other "
                   "territories.";
        case ReportKind::weekly:
            return "Weekly reports are available on Mondays.";
        case ReportKind::monthly:
            return "Monthly reports are available five days after the end of the month.";
        case ReportKind::yearly:
            return "Yearly reports are available six days after the end of the calendar year.";
        case ReportKind::finance:
            return "Financial reports are available within 33 days of the last day of the fiscal month.";
    }
    return {};
}

}  // namespace

Answer notAuthorized() {
    return error(
        401, "NOT_AUTHORIZED", "Authentication credentials are missing or invalid.",
        "Provide a properly configured and signed bearer token, and make sure that it has not expired. "
        "Learn more about Generating Tokens for API Requests.");
}

Answer wrongVendor() {
    return error(403, "FORBIDDEN_ERROR", "The request is forbidden",
                 "Invalid vendor number specified. Try again.");
}

Answer missingParameter(std::string_view parameter) {
    std::string detail = "The parameter '";
    detail.append(parameter).append("' is required but was not provided");
    return error(400, "PARAMETER_ERROR.REQUIRED", "A required parameter is missing", detail);
}

Answer invalidParameter(std::string_view parameter, std::string_view value) {
    std::string detail = "'";
    detail.append(value).append("' is not a valid value for the parameter '").append(parameter).append("'");
    return error(400, "PARAMETER_ERROR.INVALID", "A parameter has an invalid value", detail);
}

Answer otherVersion(std::string_view latest) {
    return error(
        400, "PARAMETER_ERROR.INVALID", "A parameter has an invalid value",
        "The version parameter you have specified is invalid. The latest version for this report is " +
            std::string{latest} + ".");
}

Answer noSales() {
    return notFound(404, "There were no sales for the date specified.");
}

Answer notYetAvailable(ReportKind kind) {
    return notFound(404, "Report is not available yet. " + std::string{publicationRule(kind)});
}

Answer noLongerAvailable() {
    return notFound(410, "Report is no longer available.");
}

Answer noSuchPath() {
    return error(404, "PATH_ERROR", "The URL path is not valid",
                 "The resource that was asked for does not match a defined path");
}

}  // namespace vantrell::sample
