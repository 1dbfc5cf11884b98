#include <gtest/gtest.h>
#include <wrappers/forward.h>

namespace {
struct Control {
    int Twice(int n) const { return 2 * n; }
    void Count(int& n) { n += ++nCalls; }
    int nCalls = 0;
};

struct NoMemory {
    NoMemory() { throw std::bad_alloc(); }
};
}  // namespace

TEST(Forward, PassesArgumentsAndResult) {
    const auto pControl = MakeControl<Control>();
    int nSeen = 0;
    EXPECT_EQ(14, Forward(pControl, &Control::Twice, 7));
    Forward(pControl, &Control::Count, nSeen);
    EXPECT_EQ(1, nSeen) << "references stay references";
}

TEST(Forward, WithoutControl) {
    const std::shared_ptr<Control> pNone;
    int nSeen = 0;
    EXPECT_EQ(0, Forward(pNone, &Control::Twice, 7));
    EXPECT_EQ(-1, Forward<-1>(pNone, &Control::Twice, 7));
    Forward(pNone, &Control::Count, nSeen);
    EXPECT_EQ(0, nSeen);
}

TEST(Forward, KeepsTheControlWhileItIsCalled) {
    auto pControl = MakeControl<Control>();
    const std::weak_ptr<Control> pWatch = pControl;
    const int nResult = Forward(pControl, [&](Control&) {
        pControl.reset();  // the host destroys the wrapper from inside the call
        return pWatch.expired() ? 0 : 1;
    });
    EXPECT_EQ(1, nResult);
    EXPECT_TRUE(pWatch.expired());
}

TEST(MakeControl, NoMemoryGivesNoControl) { EXPECT_EQ(nullptr, MakeControl<NoMemory>()); }
