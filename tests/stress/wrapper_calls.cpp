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

void InitWheel(CProxy_BR& wheel, Dice& dice) {
    CArray<tagmyBRData, tagmyBRData&> sectors;
    for (int n = dice.Between(0, 64); n > 0; --n) {
        auto sector = dice.Make<tagmyBRData>();
        sectors.Add(sector);
    }
    wheel.Init(sectors, dice.Make<tagBlocksInfo>());
}

const Methods<CProxy_BR>& MethodsOf(CProxy_BR*) {
    using T = CProxy_BR;
    static const Methods<T> methods{
        InitWheel,
        Random(&T::Play),
        Random(&T::Stop),
        Random(&T::ReDraw),
        Random(&T::SetUpdateTime),
        Random(&T::SetTitle),
        Random(&T::GetBlocksInfo),
        Random(&T::GetCurBlockData),
        Random(static_cast<int (T::*)(tagmyBRData&)>(&T::SetData)),
        Random(static_cast<int (T::*)(int, tagmyBRData&)>(&T::SetData)),
        Random(&T::Create),
    };
    return methods;
}

const Methods<CProxy_ChartOL>& MethodsOf(CProxy_ChartOL*) {
    using T = CProxy_ChartOL;
    static const Methods<T> methods{Random(&T::Init), Random(&T::SetData), Random(&T::SetJueShaData),
                                    Random(&T::Play), Random(&T::Stop),    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_HistogramCtrl>& MethodsOf(CProxy_HistogramCtrl*) {
    using T = CProxy_HistogramCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::SetData),
                                    Random(&T::Play),
                                    Random(&T::SetIndex),
                                    Random(&T::SetCoordinateShaftColor),
                                    Random(&T::SetGirdColor),
                                    Random(&T::SetBackColor),
                                    Random(&T::SetCoordinateShaftFontColor),
                                    Random(&T::SetCoordinateShaftTitleColor),
                                    Random(&T::SetBorderColor),
                                    Random(&T::DisplayGird),
                                    Random(&T::SetYTitle),
                                    Random(&T::SetXTitle),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PieChartCtrl>& MethodsOf(CProxy_PieChartCtrl*) {
    using T = CProxy_PieChartCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::SetData),
                                    Random(&T::Play),
                                    Random(&T::SelectPieById),
                                    Random(&T::SetBorderColor),
                                    Random(&T::SetCircleBorderColor),
                                    Random(&T::SetCircleBackgroundColor),
                                    Random(&T::SetBackColor),
                                    Random(&T::SetPieBorderColor),
                                    Random(&T::SetSumTipTitleColor),
                                    Random(&T::SetSumTipContxtColor),
                                    Random(&T::SetActivePieBackColor),
                                    Random(&T::SetSeparateLineColor),
                                    Random(&T::SetInfoTipWidth),
                                    Random(&T::SetInfoTipHeight),
                                    Random(&T::SetInfoTipTitleBackColor),
                                    Random(&T::SetInfoTipTitleFontColor),
                                    Random(&T::SetInfoTipContextBackColor),
                                    Random(&T::SetInfoTipContextFontColor),
                                    Random(&T::SetSumTipTitleTopText),
                                    Random(&T::SetSumTipTitleBottomText),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PointRadarCtrl>& MethodsOf(CProxy_PointRadarCtrl*) {
    using T = CProxy_PointRadarCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::Play),
                                    Random(&T::ActiveBlockByInfo),
                                    Random(&T::ClearData),
                                    Random(&T::SetData),
                                    Random(&T::SetGirdVisble),
                                    Random(&T::SetCoordinateShaftFontSize),
                                    Random(&T::SetGateBkColor),
                                    Random(&T::SetCoordinateShaftLineColor),
                                    Random(&T::SetFontColor),
                                    Random(&T::SetBorderColor),
                                    Random(&T::SetSouthGate),
                                    Random(&T::SetWestGate),
                                    Random(&T::SetUpdateTime),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PointStartCtrl>& MethodsOf(CProxy_PointStartCtrl*) {
    using T = CProxy_PointStartCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::Play),
                                    Random(&T::ClearData),
                                    Random(&T::SetData),
                                    Random(&T::SetCoordinateShaftFontSize),
                                    Random(&T::SetCoordinateShaftLineColor),
                                    Random(&T::SetFontColor),
                                    Random(&T::SetGirdVisble),
                                    Random(&T::SetBorderColor),
                                    Random(&T::SetUpdateTime),
                                    Random(&T::SetTitle),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PositionBarCtrl>& MethodsOf(CProxy_PositionBarCtrl*) {
    using T = CProxy_PositionBarCtrl;
    static const Methods<T> methods{Random(&T::Play),
                                    Random(&T::Stop),
                                    Random(&T::ReDraw),
                                    Random(&T::SetData),
                                    Random(&T::SetTitle),
                                    Random(&T::SetColor),
                                    Random(&T::SetTitleTextColor),
                                    Random(&T::SetCylinderColor),
                                    Random(&T::SetCoordinateColor),
                                    Random(&T::SetBorderColor),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PriceRadarCtrl>& MethodsOf(CProxy_PriceRadarCtrl*) {
    using T = CProxy_PriceRadarCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::SetData),
                                    Random(&T::Play),
                                    Random(&T::SetTitleText),
                                    Random(&T::SetTitleFontColor),
                                    Random(&T::SetBackColor),
                                    Random(&T::SetTitleBackColor),
                                    Random(&T::SetLeftBorderColor),
                                    Random(&T::SetRightBorderColor),
                                    Random(&T::SetTopBorderColor),
                                    Random(&T::SetBottomBorderColor),
                                    Random(&T::SetTitleFontSize),
                                    Random(&T::SetTitleHeight),
                                    Random(&T::SetLabelHeight),
                                    Random(&T::SetSelectId),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_PrssureSupportCtrl>& MethodsOf(CProxy_PrssureSupportCtrl*) {
    using T = CProxy_PrssureSupportCtrl;
    static const Methods<T> methods{Random(&T::Play),
                                    Random(&T::Stop),
                                    Random(&T::ReDraw),
                                    Random(&T::SetPriceData),
                                    Random(&T::SetColor),
                                    Random(&T::SetPrSuColor),
                                    Random(&T::SetPrSuTextColor),
                                    Random(&T::SetBigMidSmallColor),
                                    Random(&T::SetBorderColor),
                                    Random(&T::SerSeparLineColor),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_RiskBarCtrl>& MethodsOf(CProxy_RiskBarCtrl*) {
    using T = CProxy_RiskBarCtrl;
    static const Methods<T> methods{Random(&T::Play),         Random(&T::Stop),
                                    Random(&T::ReDraw),       Random(&T::SetData),
                                    Random(&T::SetTitle),     Random(&T::SetExplain),
                                    Random(&T::SetColor),     Random(&T::SetTitleTextColor),
                                    Random(&T::SetLineColor), Random(&T::SetBorderColor),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_RoePointCtrl>& MethodsOf(CProxy_RoePointCtrl*) {
    using T = CProxy_RoePointCtrl;
    static const Methods<T> methods{Random(&T::Init),
                                    Random(&T::Play),
                                    Random(&T::ActiveBlockByInfo),
                                    Random(&T::SetData),
                                    Random(&T::SetGirdVisble),
                                    Random(&T::SetCoordinateShaftFontSize),
                                    Random(&T::SetGateBkColor),
                                    Random(&T::SetFontColor),
                                    Random(&T::SetBorderColor),
                                    Random(&T::SetGate),
                                    Random(&T::SetUpdateTime),
                                    Random(&T::SetTitle),
                                    Random(&T::SetCoordinateShaftLineColor),
                                    Random(&T::Create)};
    return methods;
}

const Methods<CProxy_TabCtrl>& MethodsOf(CProxy_TabCtrl*) {
    using T = CProxy_TabCtrl;
    static const Methods<T> methods{Random(&T::AddItem),
                                    Random(&T::ClearContent),
                                    Random(&T::GetActiveId),
                                    Random(&T::SelectTabById),
                                    Random(&T::SetBackColor),
                                    Random(&T::SetFontColor),
                                    Random(&T::SetActiveTabBackColor),
                                    Random(&T::SetActiveTabFontColor),
                                    Random(&T::SetNormalTabBackColor),
                                    Random(&T::SetFontSize),
                                    Random(&T::SetFontBold),
                                    Random(&T::Create)};
    return methods;
}

template <class T>
class Wrapped : public AnyWrapper {
public:
    Wrapped() = default;
    explicit Wrapped(const T& wrapper) : m_wrapper(wrapper) {}

    std::size_t MethodCount() const override { return MethodsOf(static_cast<T*>(nullptr)).size(); }
    void Call(std::size_t nMethod, Dice& dice) override {
        MethodsOf(static_cast<T*>(nullptr))[nMethod](m_wrapper, dice);
    }
    BOOL Create(CWnd* pParent, const CRect& rect, UINT nId) override {
        if constexpr (std::is_same_v<T, CProxy_TabCtrl>)
            return m_wrapper.Create(pParent, rect, nId, TAB_HORZ_CHAMFER);
        else
            return m_wrapper.Create(pParent, rect, nId);
    }
    std::unique_ptr<AnyWrapper> Copy() const override { return std::make_unique<Wrapped>(m_wrapper); }

private:
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
