/// The exported methods of all twelve wrappers, each callable with random arguments.
#pragma once

#include <tavlon/tavlon.h>

#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "stress/dice.h"

/// One wrapper of any kind behind one face.
class AnyWrapper {
public:
    virtual ~AnyWrapper() = default;
    virtual std::size_t MethodCount() const = 0;
    virtual void Call(std::size_t nMethod, Dice& dice) = 0;
    virtual BOOL Create(CWnd* pParent, const CRect& rect, UINT nId) = 0;
    virtual std::unique_ptr<AnyWrapper> Copy() const = 0;
};

constexpr int kWrapperKinds = 12;
/// A fresh wrapper of kind 0 to 11.
std::unique_ptr<AnyWrapper> MakeWrapper(int nKind);
