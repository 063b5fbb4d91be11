#include "validate/validate.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace AnimText::validate {
namespace {

QString Name(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

QString Counted(const Report& report, Severity severity)
{
    return scene::Counted(Count(report.findings, severity), Name(severity));
}

QJsonObject AsJson(const Report& report)
{
    QJsonArray list;
    for (const Finding& finding : report.findings) {
        const Rule& rule = finding.GetRule();
        list.append(QJsonObject{{"code", rule.code},
                                {"severity", Name(rule.severity)},
                                {"place", finding.place},
                                {"found", finding.found},
                                {"expected", finding.expected},
                                {"why", rule.why}});
    }
    return {{"scene", report.path},
            {"errors", Count(report.findings, Severity::Error)},
            {"warnings", Count(report.findings, Severity::Warning)},
            {"findings", list}};
}

} // namespace

QString Finding::Line() const
{
    const Rule& rule = GetRule();
    const QString at = place.isEmpty() ? QString() : " at " + place;
    return QStringLiteral("%1%2: found %3, expected %4. %5")
        .arg(QLatin1String(rule.code), at, found, expected, QLatin1String(rule.why));
}

int Count(const QList<Finding>& findings, Severity severity)
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const Finding& f) {
        return f.GetRule().severity == severity;
    }));
}

QByteArray ReportAsText(const Report& report)
{
    if (report.findings.isEmpty())
        return report.path.toUtf8() + ": no mistakes found\n";
    QString text =
        QStringLiteral("%1: %2, %3\n")
            .arg(report.path, Counted(report, Severity::Error), Counted(report, Severity::Warning));
    for (const Finding& finding : report.findings) {
        const Rule& rule = finding.GetRule();
        text += QStringLiteral("\n%1 %2%3\n  found %4,\n  expected %5\n  %6\n")
                    .arg(Name(rule.severity), rule.code,
                         finding.place.isEmpty() ? "" : " at " + finding.place, finding.found,
                         finding.expected, rule.why);
    }
    return text.toUtf8();
}

QByteArray ReportsAsJson(const QList<Report>& reports)
{
    QJsonArray list;
    for (const Report& report : reports)
        list.append(AsJson(report));
    return (list.size() == 1 ? QJsonDocument(list.first().toObject()) : QJsonDocument(list))
        .toJson(QJsonDocument::Indented);
}

} // namespace AnimText::validate
