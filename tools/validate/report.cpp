#include "validate/validate.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>

namespace AnimText {
namespace {

QString Name(Severity severity)
{
    return severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
}

QString Counted(int count, Severity severity)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(Name(severity),
                                                    QLatin1String(count == 1 ? "" : "s"));
}

QJsonObject AsJson(const Report& report)
{
    QJsonArray list;
    for (const Finding& finding : report.findings) {
        const Rule& rule = finding.GetRule();
        list.append(QJsonObject{{QStringLiteral("code"), QLatin1String(rule.code)},
                                {QStringLiteral("severity"), Name(rule.severity)},
                                {QStringLiteral("place"), finding.place},
                                {QStringLiteral("found"), finding.found},
                                {QStringLiteral("expected"), finding.expected},
                                {QStringLiteral("why"), QLatin1String(rule.why)}});
    }
    return {{QStringLiteral("scene"), report.path},
            {QStringLiteral("errors"), Count(report.findings, Severity::Error)},
            {QStringLiteral("warnings"), Count(report.findings, Severity::Warning)},
            {QStringLiteral("findings"), list}};
}

} // namespace

int Count(const QList<Finding>& findings, Severity severity)
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const Finding& f) {
        return f.GetRule().severity == severity;
    }));
}

QByteArray ReportAsText(const Report& report)
{
    QString text;
    QTextStream out(&text);
    if (report.findings.isEmpty()) {
        out << report.path << ": no mistakes found\n";
        return text.toUtf8();
    }
    out << report.path << ": " << Counted(Count(report.findings, Severity::Error), Severity::Error)
        << ", " << Counted(Count(report.findings, Severity::Warning), Severity::Warning) << '\n';
    for (const Finding& finding : report.findings) {
        const Rule& rule = finding.GetRule();
        out << '\n' << Name(rule.severity) << ' ' << rule.code;
        if (!finding.place.isEmpty())
            out << " at " << finding.place;
        out << "\n  found " << finding.found << ",\n  expected " << finding.expected << "\n  "
            << rule.why << '\n';
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

} // namespace AnimText
