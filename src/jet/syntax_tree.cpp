#include "jet/syntax_tree.h"

namespace jet {

namespace {

/// Nodes that wait to be used again.
struct Waiting {
    std::vector<void*> nodes;
    ~Waiting()
    {
        for (void* node : nodes)
            ::operator delete(node);
    }
};
thread_local Waiting waiting;
constexpr size_t kMostWaiting = 1024;

} // namespace

void* Expression::operator new(size_t size)
{
    if (waiting.nodes.empty() || size != sizeof(Expression))
        return ::operator new(size);
    void* node = waiting.nodes.back();
    waiting.nodes.pop_back();
    return node;
}

void Expression::operator delete(void* node)
{
    if (waiting.nodes.size() < kMostWaiting)
        waiting.nodes.push_back(node);
    else
        ::operator delete(node);
}

} // namespace jet
