#include "jet/engine.h"

namespace jet {

Batch::Batch(Database& database, Mode mode)
    : m_engine(database.m_engine)
    , m_mode(mode)
    , m_isRunning(m_engine->isOpen())
{
    if (!m_isRunning)
        return;
    m_failuresBefore = m_engine->isInBatch() ? m_engine->failuresOfBatch() : 0;
    m_engine->beginBatch();
}

Batch::~Batch()
{
    commit();
}

bool Batch::commit()
{
    return end(m_mode == Mode::KeepWhatSucceeds || m_engine->failuresOfBatch() == m_failuresBefore);
}

void Batch::rollBack()
{
    end(false);
}

bool Batch::end(bool keep)
{
    if (std::exchange(m_isRunning, false))
        m_isCommitted = m_engine->endBatch(keep);
    return m_isCommitted;
}

Step::Step(Database& database, const QString& name)
    : m_engine(database.m_engine)
{
    m_engine->beginStep(name);
}

Step::~Step()
{
    m_engine->endStep();
}

void Step::follow(StepFollower follower)
{
    if (follower && m_engine->undoLog())
        m_engine->undoLog()->follow(std::move(follower));
}

Upkeep::Upkeep(Database& database)
    : m_engine(database.m_engine)
{
    m_engine->beginUpkeep();
}

Upkeep::~Upkeep()
{
    m_engine->endUpkeep();
}

} // namespace jet
