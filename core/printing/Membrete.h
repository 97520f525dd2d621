#pragma once

namespace impreso {

/// The authority's names and web address beside and under its emblem, at the head of every page.
void ImprimirMembrete();

}  // namespace impreso
