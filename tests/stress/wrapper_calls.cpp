#include "stress/wrapper_calls.h"

namespace {

template <class T>
using Methods = std::vector<std::function<void(T&, Dice&)>>;

/// A call of `method` whose arguments are made from its own signature.
template <class T, class Result, class... Args>
auto Random(Result (T::*method)(Args...)) {
    return [method](T& object, Dice& dice) {
        std::tuple<std::decay_t<Args>...> args{dice.Make<std::decay_t<Args>>()...};
        std::apply([&](auto&... arg) { (object.*method)(arg...); }, args);
    };
}

/// One that makes its own arguments.
template <class T>
auto Random(void (*call)(T&, Dice&)) {
    return call;
}

template <class T, class... Callable>
Methods<T> RandomCalls(Callable... callable) {
    return {Random(callable)...};
}

void InitWheel(CProxy_BR& wheel, Dice& dice) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (int n = dice.Between(0, 64); n > 0; --n) {
        auto sector = dice.Make<tagmyBRData>();
        sectors.Add(sector);
    }
    wheel.Init(sectors, dice.Make<tagBlocksInfo>());
}

Methods<CProxy_BR> MethodsOf(CProxy_BR*) {
    using T = CProxy_BR;
    return RandomCalls<T>(InitWheel, &T::Play, &T::Stop, &T::ReDraw, &T::SetUpdateTime, &T::SetTitle,
                          &T::GetBlocksInfo, &T::GetCurBlockData,
                          static_cast<int (T::*)(tagmyBRData&)>(&T::SetData),
                          static_cast<int (T::*)(int, tagmyBRData&)>(&T::SetData), &T::Create);
}

Methods<CProxy_ChartOL> MethodsOf(CProxy_ChartOL*) {
    using T = CProxy_ChartOL;
    return RandomCalls<T>(&T::Init, &T::SetData, &T::SetJueShaData, &T::Play, &T::Stop, &T::Create);
}

Methods<CProxy_HistogramCtrl> MethodsOf(CProxy_HistogramCtrl*) {
    using T = CProxy_HistogramCtrl;
    return RandomCalls<T>(&T::Init, &T::SetData, &T::Play, &T::SetIndex, &T::SetCoordinateShaftColor,
                          &T::SetGirdColor, &T::SetBackColor, &T::SetCoordinateShaftFontColor,
                          &T::SetCoordinateShaftTitleColor, &T::SetBorderColor, &T::DisplayGird,
                          &T::SetYTitle, &T::SetXTitle, &T::Create);
}

Methods<CProxy_PieChartCtrl> MethodsOf(CProxy_PieChartCtrl*) {
    using T = CProxy_PieChartCtrl;
    return RandomCalls<T>(&T::Init, &T::SetData, &T::Play, &T::SelectPieById, &T::SetBorderColor,
                          &T::SetCircleBorderColor, &T::SetCircleBackgroundColor, &T::SetBackColor,
                          &T::SetPieBorderColor, &T::SetSumTipTitleColor, &T::SetSumTipContxtColor,
                          &T::SetActivePieBackColor, &T::SetSeparateLineColor, &T::SetInfoTipWidth,
                          &T::SetInfoTipHeight, &T::SetInfoTipTitleBackColor, &T::SetInfoTipTitleFontColor,
                          &T::SetInfoTipContextBackColor, &T::SetInfoTipContextFontColor,
                          &T::SetSumTipTitleTopText, &T::SetSumTipTitleBottomText, &T::Create);
}

Methods<CProxy_PointRadarCtrl> MethodsOf(CProxy_PointRadarCtrl*) {
    using T = CProxy_PointRadarCtrl;
    return RandomCalls<T>(&T::Init, &T::Play, &T::ActiveBlockByInfo, &T::ClearData, &T::SetData,
                          &T::SetGirdVisble, &T::SetCoordinateShaftFontSize, &T::SetGateBkColor,
                          &T::SetCoordinateShaftLineColor, &T::SetFontColor, &T::SetBorderColor,
                          &T::SetSouthGate, &T::SetWestGate, &T::SetUpdateTime, &T::Create);
}

Methods<CProxy_PointStartCtrl> MethodsOf(CProxy_PointStartCtrl*) {
    using T = CProxy_PointStartCtrl;
    return RandomCalls<T>(&T::Init, &T::Play, &T::ClearData, &T::SetData, &T::SetCoordinateShaftFontSize,
                          &T::SetCoordinateShaftLineColor, &T::SetFontColor, &T::SetGirdVisble,
                          &T::SetBorderColor, &T::SetUpdateTime, &T::SetTitle, &T::Create);
}

Methods<CProxy_PositionBarCtrl> MethodsOf(CProxy_PositionBarCtrl*) {
    using T = CProxy_PositionBarCtrl;
    return RandomCalls<T>(&T::Play, &T::Stop, &T::ReDraw, &T::SetData, &T::SetTitle, &T::SetColor,
                          &T::SetTitleTextColor, &T::SetCylinderColor, &T::SetCoordinateColor,
                          &T::SetBorderColor, &T::Create);
}

Methods<CProxy_PriceRadarCtrl> MethodsOf(CProxy_PriceRadarCtrl*) {
    using T = CProxy_PriceRadarCtrl;
    return RandomCalls<T>(&T::Init, &T::SetData, &T::Play, &T::SetTitleText, &T::SetTitleFontColor,
                          &T::SetBackColor, &T::SetTitleBackColor, &T::SetLeftBorderColor,
                          &T::SetRightBorderColor, &T::SetTopBorderColor, &T::SetBottomBorderColor,
                          &T::SetTitleFontSize, &T::SetTitleHeight, &T::SetLabelHeight, &T::SetSelectId,
                          &T::Create);
}

Methods<CProxy_PrssureSupportCtrl> MethodsOf(CProxy_PrssureSupportCtrl*) {
    using T = CProxy_PrssureSupportCtrl;
    return RandomCalls<T>(&T::Play, &T::Stop, &T::ReDraw, &T::SetPriceData, &T::SetColor, &T::SetPrSuColor,
                          &T::SetPrSuTextColor, &T::SetBigMidSmallColor, &T::SetBorderColor,
                          &T::SerSeparLineColor, &T::Create);
}

Methods<CProxy_RiskBarCtrl> MethodsOf(CProxy_RiskBarCtrl*) {
    using T = CProxy_RiskBarCtrl;
    return RandomCalls<T>(&T::Play, &T::Stop, &T::ReDraw, &T::SetData, &T::SetTitle, &T::SetExplain,
                          &T::SetColor, &T::SetTitleTextColor, &T::SetLineColor, &T::SetBorderColor,
                          &T::Create);
}

Methods<CProxy_RoePointCtrl> MethodsOf(CProxy_RoePointCtrl*) {
    using T = CProxy_RoePointCtrl;
    return RandomCalls<T>(&T::Init, &T::Play, &T::ActiveBlockByInfo, &T::SetData, &T::SetGirdVisble,
                          &T::SetCoordinateShaftFontSize, &T::SetGateBkColor, &T::SetFontColor,
                          &T::SetBorderColor, &T::SetGate, &T::SetUpdateTime, &T::SetTitle,
                          &T::SetCoordinateShaftLineColor, &T::Create);
}

Methods<CProxy_TabCtrl> MethodsOf(CProxy_TabCtrl*) {
    using T = CProxy_TabCtrl;
    return RandomCalls<T>(&T::AddItem, &T::ClearContent, &T::GetActiveId, &T::SelectTabById, &T::SetBackColor,
                          &T::SetFontColor, &T::SetActiveTabBackColor, &T::SetActiveTabFontColor,
                          &T::SetNormalTabBackColor, &T::SetFontSize, &T::SetFontBold, &T::Create);
}

template <class T>
class Wrapped : public AnyWrapper {
public:
    Wrapped() = default;
    explicit Wrapped(const T& wrapper) : m_wrapper(wrapper) {}

    std::size_t MethodCount() const override { return TheMethods().size(); }
    void Call(std::size_t nMethod, Dice& dice) override { TheMethods()[nMethod](m_wrapper, dice); }
    BOOL Create(CWnd* pParent, const CRect& rect, UINT nId) override {
        if constexpr (std::is_same_v<T, CProxy_TabCtrl>)
            return m_wrapper.Create(pParent, rect, nId, TAB_HORZ_CHAMFER);
        else
            return m_wrapper.Create(pParent, rect, nId);
    }
    std::unique_ptr<AnyWrapper> Copy() const override { return std::make_unique<Wrapped>(m_wrapper); }

private:
    static const Methods<T>& TheMethods() {
        static const Methods<T> s_methods = MethodsOf(static_cast<T*>(nullptr));
        return s_methods;
    }

    T m_wrapper;
};

template <class... T>
std::unique_ptr<AnyWrapper> MakeOneOf(int nKind) {
    static_assert(sizeof...(T) == kWrapperKinds);
    using Factory = std::unique_ptr<AnyWrapper> (*)();
    static constexpr Factory kFactories[] = {
        [] { return std::unique_ptr<AnyWrapper>(std::make_unique<Wrapped<T>>()); }...};
    return kFactories[nKind]();
}

}  // namespace

std::unique_ptr<AnyWrapper> MakeWrapper(int nKind) {
    return MakeOneOf<CProxy_BR, CProxy_ChartOL, CProxy_HistogramCtrl, CProxy_PieChartCtrl,
                     CProxy_PointRadarCtrl, CProxy_PointStartCtrl, CProxy_PositionBarCtrl,
                     CProxy_PriceRadarCtrl, CProxy_PrssureSupportCtrl, CProxy_RiskBarCtrl,
                     CProxy_RoePointCtrl, CProxy_TabCtrl>(nKind);
}
