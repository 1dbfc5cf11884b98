#include <gtest/gtest.h>
#include <wrappers/forward.h>

namespace {
struct Control {
    int Twice(int n) const { return 2 * n; }
    void Count(int& n) { n += ++nCalls; }
    int nCalls = 0;
};

/// Tells when it goes, as a control's window tells the host.
struct Parting {
    ~Parting() {
        if (onGo) onGo();
    }
    int Answer() const { return nAnswer; }
    std::function<void()> onGo;
    int nAnswer = 1;
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

TEST(Owned, IsEmptyWhileTheControlGoes) {
    auto* pOwner = new Owned<Parting>(std::make_shared<Parting>());
    int nGone = 0, nAnswer = 99;
    (**pOwner).onGo = [&] {
        if (++nGone == 1) nAnswer = Forward<-1>(*pOwner, &Parting::Answer);
    };
    delete pOwner;
    EXPECT_EQ(1, nGone);
    EXPECT_EQ(-1, nAnswer);
}

TEST(Owned, HasTheNewControlWhileTheOldOneGoes) {
    Owned<Parting> owner(std::make_shared<Parting>()), next(std::make_shared<Parting>());
    (*next).nAnswer = 2;
    int nGone = 0, nAnswer = 99;
    (*owner).onGo = [&] {
        if (++nGone == 1) nAnswer = Forward(owner, &Parting::Answer);
    };
    owner = next;
    EXPECT_EQ(1, nGone);
    EXPECT_EQ(2, nAnswer);
}

TEST(Owned, AssignedToItselfKeepsTheControl) {
    Owned<Parting> owner(std::make_shared<Parting>());
    int nGone = 0;
    (*owner).onGo = [&] { ++nGone; };
    owner = *&owner;
    EXPECT_EQ(0, nGone);
    EXPECT_TRUE(owner);
    owner = {};
    EXPECT_EQ(1, nGone);
    EXPECT_FALSE(owner);
}
