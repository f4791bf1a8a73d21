#pragma once

#include "jet/lexer.h"
#include "jet/prepared.h"
#include "jet/translator.h"

#include <QCache>

#include <memory>
#include <optional>
#include <vector>

namespace jet {

/// A translation with the prepared statements that are waiting to run it again.
struct Plan {
    Translation translation;
    StatementPool mainPool;
    StatementPool rowPool;
    StatementPool narrowedPool;
    StatementPool stretchPool;
    StatementPool keysPool;
    StatementPool keysOfRowsPool;
    StatementPool unionRowsPool;

    /// One of the pools, by a pointer that keeps the plan.
    static std::shared_ptr<StatementPool> poolOf(const std::shared_ptr<Plan>& plan, StatementPool Plan::*pool)
    {
        return {plan, &((*plan).*pool)};
    }
};

/// A plan and the values that one text has for it.
struct Request {
    std::shared_ptr<Plan> plan;
    std::shared_ptr<const std::vector<Literal>> literals;
};

/// Translates statements and keeps the translations: by text for what comes again to the letter, by shape for
/// what comes again with other values. Who has a plan may go on with it after it was forgotten here.
class PlanCache {
public:
    /// Nothing, and why, when the statement can not be understood.
    std::optional<Request> request(QStringView sql, Way way, const Catalog& catalog, QString* error);
    /// To be called whenever a table was made, altered or dropped.
    void forget();

private:
    struct OfWay {
        QCache<QString, Request> byText{512};
        QCache<QString, std::shared_ptr<Plan>> byShape{512};
    };
    static std::shared_ptr<Plan> plan(
        OfWay& kept, const Lexed& lexed, Way way, const Catalog& catalog, QString* error);

    OfWay m_kept[2];
};

} // namespace jet
