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

} // namespace

int Count(const QList<Finding>& findings, Severity severity)
{
    return int(std::count_if(findings.begin(), findings.end(), [severity](const Finding& f) {
        return f.rule->severity == severity;
    }));
}

QByteArray FindingsAsText(const QString& path, const QList<Finding>& findings)
{
    QString text;
    QTextStream out(&text);
    if (findings.isEmpty()) {
        out << path << ": no mistakes found\n";
        return text.toUtf8();
    }
    out << path << ": " << Counted(Count(findings, Severity::Error), Severity::Error) << ", "
        << Counted(Count(findings, Severity::Warning), Severity::Warning) << '\n';
    for (const Finding& finding : findings) {
        out << '\n' << Name(finding.rule->severity) << ' ' << finding.rule->code;
        if (!finding.place.isEmpty())
            out << " at " << finding.place;
        out << "\n  found " << finding.found << ",\n  expected " << finding.expected << "\n  "
            << finding.rule->why << '\n';
    }
    return text.toUtf8();
}

QByteArray FindingsAsJson(const QString& path, const QList<Finding>& findings)
{
    QJsonArray list;
    for (const Finding& finding : findings) {
        list.append(QJsonObject{{QStringLiteral("code"), QLatin1String(finding.rule->code)},
                                {QStringLiteral("severity"), Name(finding.rule->severity)},
                                {QStringLiteral("place"), finding.place},
                                {QStringLiteral("found"), finding.found},
                                {QStringLiteral("expected"), finding.expected},
                                {QStringLiteral("why"), QLatin1String(finding.rule->why)}});
    }
    const QJsonObject report{{QStringLiteral("scene"), path},
                             {QStringLiteral("errors"), Count(findings, Severity::Error)},
                             {QStringLiteral("warnings"), Count(findings, Severity::Warning)},
                             {QStringLiteral("findings"), list}};
    return QJsonDocument(report).toJson(QJsonDocument::Indented);
}

} // namespace AnimText
