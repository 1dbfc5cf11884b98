#include "load_progress.h"

#include <algorithm>
#include <utility>

namespace gallery {

namespace {
constexpr DWORD kQuietTime = 500, kBetween = 50;  // milliseconds

LoadProgress* s_pNewest = nullptr;
}  // namespace

LoadProgress::LoadProgress(Tell tell, Clock clock)
    : m_pOuter(std::exchange(s_pNewest, this)),
      m_tell(std::move(tell)),
      m_clock(std::move(clock)),
      m_dwSince(m_clock()),
      m_dwToWait(kQuietTime) {}

LoadProgress::~LoadProgress() { s_pNewest = m_pOuter; }

void LoadProgress::Report(const std::string& strFile, std::size_t nDone, std::size_t nAll) {
    if (s_pNewest) s_pNewest->TellInTime(strFile, nDone, nAll);
}

void LoadProgress::TellInTime(const std::string& strFile, std::size_t nDone, std::size_t nAll) {
    const DWORD dwNow = m_clock();
    if (dwNow - m_dwSince < m_dwToWait) return;  // right also where the count starts again from 0
    m_dwSince = dwNow, m_dwToWait = kBetween;
    const double dPart = nAll == 0 ? 1 : static_cast<double>(nDone) / static_cast<double>(nAll);
    m_tell(strFile, static_cast<int>(std::min(dPart, 1.0) * 100));
}

}  // namespace gallery
