#include "checks/valautorise.h"

#include "checks/index.h"

namespace quilvane {

constexpr indexListe indexTD(TD);
constexpr indexListe indexTDC(TDC);
constexpr indexListe indexTP(TP);
constexpr indexListe indexTR(TR);
constexpr indexListe indexTDD(TDD);
constexpr indexListe indexTRG(TRG);
constexpr indexListe indexTRFNV(TRFNV);
constexpr indexListe indexTCPNOCEE(TCPNOCEE);
constexpr indexListe indexTCPNOECH(TCPNOECH);
constexpr indexListe indexTEC(TEC);
constexpr indexListe indexTCEE(TCEE);
constexpr indexListe indexTECH(TECH);
constexpr indexListe indexTRSCRE(TRSCRE);
constexpr indexListe indexTRSMOD(TRSMOD);
constexpr indexListe indexTE6(tE6);
constexpr indexListe indexTE6CRE(tE6CRE);
constexpr indexListe indexTE6INV(tE6INV);
constexpr indexListe indexTE6MOD(tE6MOD);

}  // namespace quilvane
