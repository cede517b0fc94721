// Values between the library's Variant and COM's VARIANT.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include "automation/variant.h"

namespace rangewerks::com {

using automation::Object;
using automation::Variant;

/// The value of a VARIANT; through references, the value referred to. Kinds that the library lacks
/// become the nearest that holds the value: whole numbers of other sizes Integer, Long or Double,
/// Single, Currency and Decimal Double (15 digits are exact). A one-dimensional array becomes one
/// row; lower bounds are forgotten. Raises 13 for what has no counterpart (records, arrays of more
/// than two dimensions or without elements).
Variant FromVariant(const VARIANT& value);

/// Fills a VARIANT that holds nothing; the caller clears it. Empty stays empty, an argument left
/// out becomes DISP_E_PARAMNOTFOUND, an array a two-dimensional one of variants from 1.
void ToVariant(const Variant& value, VARIANT& result);

/// Gives the variable behind a by-reference VARIANT a new value in its own type. Raises 13 when the
/// value doesn't convert to that type. Without effect for a VARIANT that is no reference.
void AssignThrough(const VARIANT& reference, const Variant& value);

}  // namespace rangewerks::com
