#pragma once

namespace torvenhall
{

/// What a virus that is not killed would cost now, dollars.
double VirusLoss();
/// Fights the virus with the antivirus; tells how it went. A lost fight costs
/// a twentieth of the money.
void FightVirus();
/// Lets the virus go; it costs a twentieth of the money.
void ReleaseVirus();

} // namespace torvenhall
