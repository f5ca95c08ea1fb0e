// SPDX-License-Identifier: MIT
#include "question.h"

#include <atomic>

namespace OrvGenApi {

namespace {

thread_local Question::Scope *innermost = nullptr;
std::atomic<uint64_t> lastRound{0};

} // namespace

Question::Scope::Scope(const NodeMapBase &map, Question &question)
    : m_map(map), m_question(question), m_outer(innermost)
{
    innermost = this;
}

Question::Scope::~Scope()
{
    innermost = m_outer;
}

Question *Question::current(const NodeMapBase &map)
{
    for (const Scope *scope = innermost; scope; scope = scope->m_outer) {
        if (&scope->m_map == &map)
            return &scope->m_question;
    }
    return nullptr;
}

void Question::beginRound()
{
    m_round = ++lastRound;
}

uint64_t Question::currentRound()
{
    return innermost ? innermost->m_question.m_round : 0;
}

} // namespace OrvGenApi
