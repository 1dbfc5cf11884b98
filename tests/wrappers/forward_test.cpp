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
    const auto control = MakeControl<Control>();
    int nSeen = 0;
    EXPECT_EQ(14, Forward(control, &Control::Twice, 7));
    Forward(control, &Control::Count, nSeen);
    EXPECT_EQ(1, nSeen) << "references stay references";
}

TEST(Forward, WithoutControl) {
    const Owned<Control> none;
    int nSeen = 0;
    EXPECT_EQ(0, Forward(none, &Control::Twice, 7));
    EXPECT_EQ(-1, Forward<-1>(none, &Control::Twice, 7));
    Forward(none, &Control::Count, nSeen);
    EXPECT_EQ(0, nSeen);
}

TEST(Forward, KeepsTheControlWhileItIsCalled) {
    auto pControl = std::make_shared<Control>();
    const std::weak_ptr<Control> pWatch = pControl;
    auto pOwner = std::make_unique<Owned<Control>>(std::move(pControl));
    const int nResult = Forward(*pOwner, [&](Control&) {
        pOwner.reset();  // the host destroys the wrapper from inside the call
        return pWatch.expired() ? 0 : 1;
    });
    EXPECT_EQ(1, nResult);
    EXPECT_TRUE(pWatch.expired());
}

TEST(MakeControl, NoMemoryGivesNoControl) { EXPECT_FALSE(MakeControl<NoMemory>()); }
