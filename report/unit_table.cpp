#include "report/unit_table.h"

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "text/characters.h"

namespace coltre {

namespace {

// Command, multiplier, decimal shift. The order is part of the behaviour: where a directive string holds
// several commands, the row that stands first here wins. Rows marked as deliberate look wrong and are kept as
// they stand.
// clang-format off
constexpr std::array<UnitCommand, 300> table{{
    // Lengths
    {"(cu_m_cm)", 100.0, -2},
    {"(cu_cm_m)", 0.01, 2},
    {"(cu_cm_in)", 0.39370079, -1},  // deliberate: shift against the multiplier
    {"(cu_in_cm)", 2.539999983236, 1},  // deliberate: shift against the multiplier
    {"(cu_cm_ft)", 0.032808399, -2},  // deliberate: shift against the multiplier
    {"(cu_ft_cm)", 30.479999953670397, 2},  // deliberate: shift against the multiplier
    {"(cu_m_mm)", 1000.0, -3},
    {"(cu_mm_m)", 0.001, 3},
    {"(cu_cm_mm)", 10.0, -1},
    {"(cu_mm_cm)", 0.1, 1},
    // Areas
    {"(cu_cm2_m2)", 0.0001, 4},
    {"(cu_m2_cm2)", 10000.0, -4},
    {"(cu_cm2_mm2)", 100.0, -2},
    {"(cu_mm2_cm2)", 0.01, 2},
    {"(cu_cm2_in2)", 0.15500031, 1},
    {"(cu_in2_cm2)", 6.4516, -1},
    {"(cu_cm2_ft2)", 0.001076387, 3},
    {"(cu_ft2_cm2)", 929.0304, -3},
    // Volumes and moments of inertia
    {"(cu_cm3_m3)", 1e-06, 6},
    {"(cu_m3_cm3)", 1000000.0, -6},
    {"(cu_cm4_m4)", 1e-08, 8},
    {"(cu_cm4_mm4)", 10000.0, -4},
    // Forces
    {"(cu_n_kgf)", 0.10197162129779283, 1},
    {"(cu_kgf_n)", 9.80665, -1},
    {"(cu_kgf_dan)", 0.9806649999999999, 0},
    {"(cu_dan_kgf)", 1.0197162129779282, 0},
    {"(cu_kn_kgf)", 101.97162129779284, -2},
    {"(cu_kgf_kn)", 0.00980665, 2},
    {"(cu_kgf_mn)", 9.806649999999999e-06, 5},
    {"(cu_mn_kgf)", 101971.62129779284, -5},
    {"(cu_kgf_gf)", 1000.0, -3},
    {"(cu_gf_kgf)", 0.001, 3},
    {"(cu_kgf_tf)", 0.001, 3},
    {"(cu_tf_kgf)", 1000.0, -3},
    {"(cu_kgf_lbf)", 2.2046223, 1},  // deliberate: shift against the multiplier
    {"(cu_lbf_kgf)", 0.45359243, -1},  // deliberate: shift against the multiplier
    {"(cu_n_dan)", 0.1, 1},
    {"(cu_dan_n)", 10.0, -1},
    {"(cu_kn_dan)", 100.0, -2},
    {"(cu_dan_kn)", 0.01, 2},
    {"(cu_dan_mn)", 1e-05, 5},
    {"(cu_mn_dan)", 100000.0, -5},
    {"(cu_dan_gf)", 1019.7162129779282, -3},
    {"(cu_gf_dan)", 0.000980665, 3},
    {"(cu_dan_tf)", 0.0010197162129779282, 3},
    {"(cu_tf_dan)", 980.665, -3},
    {"(cu_dan_lbf)", 2.24808910280269, 1},  // deliberate: shift against the multiplier
    {"(cu_lbf_dan)", 0.44482222036595, -1},  // deliberate: shift against the multiplier
    // Moments
    {"(cu_kgfcm_knm)", 9.80665e-05, 4},
    {"(cu_knm_kgfcm)", 10197.162129779283, -4},
    {"(cu_kgfcm_kncm)", 0.00980665, 2},
    {"(cu_kncm_kgfcm)", 101.97162129779284, -2},
    {"(cu_kgfcm_kgfm)", 0.01, 2},
    {"(cu_kgfm_kgfcm)", 100.0, -2},
    {"(cu_kgfcm_ncm)", 9.80665, -1},
    {"(cu_ncm_kgfcm)", 0.10197162129779283, 1},
    {"(cu_kgfcm_nm)", 0.0980665, 1},
    {"(cu_nm_kgfcm)", 10.197162129779283, -1},
    {"(cu_kgfcm_lbfin)", 0.8679615411616171, 0},
    {"(cu_lbfin_kgfcm)", 1.1521247722, 0},
    {"(cu_kgfcm_lbfft)", 0.0723301280626977, 1},
    {"(cu_lbfft_kgfcm)", 13.8254972664, -1},
    {"(cu_dancm_knm)", 0.0001, 4},
    {"(cu_knm_dancm)", 10000.0, -4},
    {"(cu_dancm_kncm)", 0.01, 2},
    {"(cu_kncm_dancm)", 100.0, -2},
    {"(cu_dancm_danm)", 0.01, 2},
    {"(cu_danm_dancm)", 100.0, -2},
    {"(cu_dancm_ncm)", 10.0, -1},
    {"(cu_ncm_dancm)", 0.1, 1},
    {"(cu_dancm_nm)", 0.1, 1},
    {"(cu_nm_dancm)", 10.0, -1},
    {"(cu_dancm_lbfin)", 0.8850744557638104, 0},
    {"(cu_lbfin_dancm)", 1.129848439729513, 0},
    {"(cu_dancm_lbfft)", 0.07375620427230267, 1},
    {"(cu_lbfft_dancm)", 13.558181276754155, -1},
    {"(cu_dancm_kgfcm)", 1.0197162129779282, 0},
    {"(cu_kgfcm_dancm)", 0.9806649999999999, 0},
    {"(cu_dancm_kgfm)", 0.010197162129779282, 2},
    {"(cu_kgfm_dancm)", 98.06649999999999, -2},
    {"(cu_dancm_tfm)", 1.0197162129779282e-05, 5},
    {"(cu_tfm_dancm)", 98066.5, -5},
    // Distributed loads (force per length)
    {"(cu_kgf/cm_kn/m)", 0.9806649999999999, 0},
    {"(cu_kn/m_kgf/cm)", 1.0197162129779282, 0},
    {"(cu_kgf/cm_kgf/m)", 100.0, -2},
    {"(cu_kgf/m_kgf/cm)", 0.01, 2},
    {"(CU_kgf/cm_N/mm)", 0.9806649999999999, 0},
    {"(CU_N/mm_kgf/cm)", 1.0197162129779282, 0},
    {"(CU_kgf/cm_N/cm)", 9.80665, -1},
    {"(CU_N/cm_kgf/cm)", 0.10197162129779283, 1},
    {"(CU_kgf/cm_N/m)", 980.665, -3},
    {"(CU_N/m_kgf/cm)", 0.0010197162129779282, 3},
    {"(CU_kgf/cm_KN/mm)", 0.0010197162129779282, 3},  // deliberate: not the inverse of the way back
    {"(CU_KN/mm_kgf/cm)", 1019.7162129779283, -3},
    {"(CU_kgf/cm_KN/cm)", 0.00980665, 2},
    {"(CU_KN/cm_kgf/cm)", 101.97162129779284, -2},
    {"(CU_Kgf/cm_MN/mm)", 9.806649999999999e-07, 6},
    {"(CU_MN/mm_Kgf/cm)", 1019716.2129779283, -6},
    {"(CU_Kgf/cm_MN/cm)", 9.806649999999999e-06, 5},
    {"(CU_MN/cm_Kgf/cm)", 101971.62129779284, -5},
    {"(CU_Kgf/cm_MN/m)", 0.000980665, 4},  // deliberate: shift 4 for the order 0.001
    {"(CU_MN/m_Kgf/cm)", 1019.7162129779283, -4},  // deliberate: shift -4 for the order 1000
    {"(CU_Kgf/cm_lbf/in)", 5.599740605041712, -1},
    {"(CU_lbf/in_Kgf/cm)", 0.17857969685039368, 1},
    {"(CU_Kgf/cm_lbf/ft)", 67.19688760186072, -2},
    {"(CU_lbf/ft_Kgf/cm)", 0.014881641404199475, 2},
    {"(cu_dan/cm_kn/m)", 1.0, 0},
    {"(cu_kn/m_dan/cm)", 1.0, 0},
    {"(cu_dan/cm_dan/m)", 100.0, -2},
    {"(cu_dan/m_dan/cm)", 0.01, 2},
    {"(CU_dan/cm_N/mm)", 1.0, 0},
    {"(CU_N/mm_dan/cm)", 1.0, 0},
    {"(CU_dan/cm_N/cm)", 10.0, -1},
    {"(CU_N/cm_dan/cm)", 0.1, 1},
    {"(CU_dan/cm_N/m)", 1000.0, -3},
    {"(CU_N/m_dan/cm)", 0.001, 3},
    {"(CU_dan/cm_KN/mm)", 0.001, 3},
    {"(CU_KN/mm_dan/cm)", 1000.0, -3},
    {"(CU_dan/cm_KN/cm)", 0.01, 2},
    {"(CU_KN/cm_dan/cm)", 100.0, -2},
    {"(CU_dan/cm_MN/mm)", 1e-06, 6},
    {"(CU_MN/mm_dan/cm)", 1000000.0, -6},
    {"(CU_dan/cm_MN/cm)", 1e-05, 5},
    {"(CU_MN/cm_dan/cm)", 100000.0, -5},
    {"(CU_dan/cm_MN/m)", 0.001, 4},  // deliberate: shift 4 for the order 0.001
    {"(CU_MN/m_dan/cm)", 1000.0, -4},  // deliberate: shift -4 for the order 1000
    {"(CU_dan/cm_lbf/in)", 5.710146283431866, -1},
    {"(CU_lbf/in_dan/cm)", 0.17512685841179132, 1},
    {"(CU_dan/cm_lbf/ft)", 68.52175574927291, -2},
    {"(CU_lbf/ft_dan/cm)", 0.014593904867649278, 2},
    {"(cu_dan/cm_kgf/cm)", 1.0197162129779282, 0},
    {"(cu_kgf/cm_dan/cm)", 0.9806649999999999, 0},
    {"(cu_dan/cm_kgf/m)", 101.97162129779284, -2},
    {"(cu_kgf/m_dan/cm)", 0.009806649999999998, 2},
    {"(cu_dan/cm_tf/m)", 0.10197162129779283, 1},
    {"(cu_tf/m_dan/cm)", 9.806649999999998, -1},
    // Speeds
    {"(cu_cm/s_m/s)", 0.01, 2},
    {"(cu_m/s_cm/s)", 100.0, -2},
    {"(cu_cm/s_km/h)", 0.036, 2},
    {"(cu_km/h_cm/s)", 27.77777777777778, -2},
    {"(cu_cm/s_ft/s)", 0.03288399, 2},  // deliberate: not the ratio of cm and ft
    {"(cu_ft/s_cm/s)", 30.48, -2},
    {"(cu_cm/s_in/s)", 0.39370079, 1},
    {"(cu_in/s_cm/s)", 2.54, -1},
    // Pressures and stresses
    {"(cu_kgf/cm2_kgf/m2)", 10000.0, -4},
    {"(cu_kgf/cm2_tf/cm2)", 0.001, 3},
    {"(cu_kgf/cm2_tf/m2)", 10.0, -1},
    {"(cu_kgf/cm2_n/mm2)", 0.0980665, 1},
    {"(cu_kgf/cm2_n/cm2)", 9.80665, -1},
    {"(cu_kgf/cm2_n/m2)", 98066.5, -5},
    {"(cu_kgf/cm2_pa)", 98066.5, -5},
    {"(cu_kgf/cm2_kn/mm2)", 9.80665e-05, 4},
    {"(cu_kgf/cm2_gpa)", 9.80665e-05, 4},
    {"(cu_kgf/cm2_kn/cm2)", 0.00980665, 2},
    {"(cu_kgf/cm2_kn/m2)", 98.06649999999999, -2},
    {"(cu_kgf/cm2_kpa)", 98.06649999999999, -2},
    {"(cu_kgf/cm2_mn/mm2)", 9.80665e-08, 7},
    {"(cu_kgf/cm2_mn/cm2)", 9.806649999999999e-06, 5},
    {"(cu_kgf/cm2_mpa)", 0.0980665, 1},
    {"(cu_kgf/cm2_mn/m2)", 0.0980665, 1},
    {"(cu_kgf/cm2_atm)", 0.96784, 0},
    {"(cu_kgf/cm2_lbf/in2)", 14.223, -1},
    {"(cu_kgf/cm2_lbf/ft2)", 2048.1614, -3},
    {"(cu_kgf/cm2_klbf/ft2)", 2.0481614, 0},
    {"(cu_kgf/cm2_dyn/m2)", 9806650000.0, -10},
    {"(cu_kgf/m2_kgf/cm2)", 0.0001, 4},
    {"(cu_tf/cm2_kgf/cm2)", 1000.0, -3},
    {"(cu_tf/m2_kgf/cm2)", 0.1, 1},
    {"(cu_n/mm2_kgf/cm2)", 10.197162129779283, -1},
    {"(cu_n/cm2_kgf/cm2)", 0.10197162129779283, 1},
    {"(cu_pa_kgf/cm2)", 1.0197162129779284e-05, 5},
    {"(cu_n/m2_kgf/cm2)", 1.0197162129779284e-05, 5},
    {"(cu_pa_kgf/m2)", 0.10197162129779283, 1},
    {"(cu_n/m2_kgf/m2)", 0.10197162129779283, 1},
    {"(cu_kn/mm2_kgf/cm2)", 10197.162129779283, -4},
    {"(cu_gpa_kgf/cm2)", 10197.162129779283, -4},
    {"(cu_kn/cm2_kgf/cm2)", 101.97162129779284, -2},
    {"(cu_kpa_kgf/cm2)", 0.010197162129779284, 2},
    {"(cu_kn/m2_kgf/cm2)", 0.010197162129779284, 2},
    {"(cu_mn/mm2_kgf/cm2)", 10197162.129779283, -7},
    {"(cu_mn/cm2_kgf/cm2)", 101971.62129779284, -5},
    {"(cu_mn/m2_kgf/cm2)", 10.197162129779283, 1},  // deliberate: shift 1 with a multiplier near 10
    {"(cu_mpa_kgf/cm2)", 10.197162129779283, 1},  // deliberate: shift 1 with a multiplier near 10
    {"(cu_atm_kgf/cm2)", 1.033228632831873, 0},
    {"(cu_lbf/in2_kgf/cm2)", 0.07030865499542993, 1},
    {"(cu_lbf/ft2_kgf/cm2)", 0.00048824277227370853, 3},
    {"(cu_klbf/ft2_kgf/cm2)", 0.4882427722737085, 0},
    {"(cu_dyn/m2_kgf/cm2)", 1.0197162129779282e-10, 10},
    {"(cu_dan/cm2_dan/mm2)", 0.01, 2},
    {"(cu_dan/cm2_dan/m2)", 10000.0, -4},
    {"(cu_dan/cm2_kgf/m2)", 10197.162129779283, -4},
    {"(cu_dan/cm2_tf/cm2)", 0.0010197162129779282, 3},
    {"(cu_dan/cm2_tf/m2)", 10.197162129779283, -1},
    {"(cu_dan/cm2_n/mm2)", 0.1, 1},
    {"(cu_dan/cm2_n/cm2)", 10.0, -1},
    {"(cu_dan/cm2_n/m2)", 100000.0, -5},
    {"(cu_dan/cm2_pa)", 100000.0, -5},
    {"(cu_dan/cm2_kn/mm2)", 0.0001, 4},
    {"(cu_dan/cm2_gpa)", 0.0001, 4},
    {"(cu_dan/cm2_kn/cm2)", 0.01, 2},
    {"(cu_dan/cm2_kn/m2)", 100.0, -2},
    {"(cu_dan/cm2_kpa)", 100.0, -2},
    {"(cu_dan/cm2_mn/mm2)", 1e-07, 7},
    {"(cu_dan/cm2_mn/cm2)", 1e-05, 5},
    {"(cu_dan/cm2_mpa)", 0.1, 1},
    {"(cu_dan/cm2_mn/m2)", 0.1, 1},
    {"(cu_dan/cm2_atm)", 0.9869221395685581, 0},
    {"(cu_dan/cm2_lbf/in2)", 14.503423697185074, -1},
    {"(cu_dan/cm2_lbf/ft2)", 2088.5433863755716, -3},
    {"(cu_dan/cm2_klbf/ft2)", 2.088543386375572, 0},
    {"(cu_dan/cm2_dyn/m2)", 10000000000.0, -10},
    {"(cu_dan/mm2_dan/cm2)", 100.0, -2},
    {"(cu_dan/m2_dan/cm2)", 0.0001, 4},
    {"(cu_kgf/m2_dan/cm2)", 9.80665e-05, 4},
    {"(cu_tf/cm2_dan/cm2)", 980.665, -3},
    {"(cu_tf/m2_dan/cm2)", 0.0980665, 1},
    {"(cu_n/mm2_dan/cm2)", 10.0, -1},
    {"(cu_n/cm2_dan/cm2)", 0.1, 1},
    {"(cu_pa_dan/cm2)", 1e-05, 5},
    {"(cu_n/m2_dan/cm2)", 1e-05, 5},
    {"(cu_pa_dan/m2)", 0.1, 1},
    {"(cu_n/m2_dan/m2)", 0.1, 1},
    {"(cu_kn/mm2_dan/cm2)", 10000.0, -4},
    {"(cu_gpa_dan/cm2)", 10000.0, -4},
    {"(cu_kn/cm2_dan/cm2)", 100.0, -2},
    {"(cu_kpa_dan/cm2)", 0.01, 2},
    {"(cu_kn/m2_dan/cm2)", 0.01, 2},
    {"(cu_mn/mm2_dan/cm2)", 10000000.0, -7},
    {"(cu_mn/cm2_dan/cm2)", 100000.0, -5},
    {"(cu_mn/m2_dan/cm2)", 10.0, 1},  // deliberate: shift 1 with a multiplier near 10
    {"(cu_mpa_dan/cm2)", 10.0, 1},  // deliberate: shift 1 with a multiplier near 10
    {"(cu_atm_dan/cm2)", 1.0132511572160687, 0},
    {"(cu_lbf/in2_dan/cm2)", 0.06894923715109329, 1},
    {"(cu_lbf/ft2_dan/cm2)", 0.0004788025982717964, 3},
    {"(cu_klbf/ft2_dan/cm2)", 0.47880259827179633, 0},
    {"(cu_dyn/m2_dan/cm2)", 1e-10, 10},
    {"(cu_dan/cm2_kgf/cm2)", 1.0197162129779282, 0},
    {"(cu_kgf/cm2_dan/cm2)", 0.9806649999999999, 0},
    // Specific weights
    {"(cu_kgf/m3_kgf/cm3)", 1e-06, 6},
    {"(cu_gf/cm3_kgf/cm3)", 0.001, 3},
    {"(cu_gf/m3_kgf/cm3)", 1e-09, 9},
    {"(cu_tf/cm3_kgf/cm3)", 1000.0, -3},
    {"(cu_tf/m3_kgf/cm3)", 0.001, 3},
    {"(cu_tf/m3_kgf/cm3)", 0.001, 3},  // never reached: the same row stands above
    {"(cu_n/cm3_kgf/cm3)", 0.10197162129779283, 1},
    {"(cu_n/m3_kgf/cm3)", 1.0197162129779283e-07, 7},
    {"(cu_kn/cm3_kgf/cm3)", 101.97162129779284, -2},
    {"(cu_kn/m3_kgf/cm3)", 0.00010197162129779283, 4},
    {"(cu_mn/cm3_kgf/cm3)", 101971.62129779284, 5},  // deliberate: shift against the multiplier
    {"(cu_mn/m3_kgf/cm3)", 0.10197162129779283, 1},
    {"(cu_lbf/in3_kgf/cm3)", 0.027679905, 2},
    {"(cu_lbf/ft3_kgf/cm3)", 1.6018463e-05, 5},
    {"(cu_kgf/cm3_kgf/m3)", 1000000.0, -6},
    {"(cu_kgf/cm3_gf/cm3)", 1000.0, -3},
    {"(cu_kgf/cm3_gf/m3)", 1000000000.0, -9},
    {"(cu_kgf/cm3_tf/cm3)", 0.001, 3},
    {"(cu_kgf/cm3_tf/m3)", 1000.0, -3},
    {"(cu_kgf/cm3_tf/m3)", 1000.0, -3},  // never reached: the same row stands above
    {"(cu_kgf/cm3_n/cm3)", 9.80665, -1},
    {"(cu_kgf/cm3_n/m3)", 9806650.0, -7},
    {"(cu_kgf/cm3_kn/cm3)", 0.00980665, 2},
    {"(cu_kgf/cm3_kn/m3)", 9806.65, -4},
    {"(cu_kgf/cm3_mn/cm3)", 9.806649999999999e-06, -5},  // deliberate: shift against the multiplier
    {"(cu_kgf/cm3_mn/m3)", 9.80665, -1},
    {"(cu_kgf/cm3_lbf/in3)", 36.12729162184625, -2},
    {"(cu_kgf/cm3_lbf/ft3)", 62427.96203356089, -5},
    {"(cu_dan/m3_dan/cm3)", 1e-06, 6},
    {"(cu_gf/cm3_dan/cm3)", 0.000980665, 3},
    {"(cu_gf/m3_dan/cm3)", 9.806650000000001e-10, 9},
    {"(cu_tf/cm3_dan/cm3)", 980.665, -3},
    {"(cu_tf/m3_dan/cm3)", 0.000980665, 3},
    {"(cu_tf/m3_dan/cm3)", 0.000980665, 3},  // never reached: the same row stands above
    {"(cu_n/cm3_dan/cm3)", 0.1, 1},
    {"(cu_n/m3_dan/cm3)", 1.0000000000000001e-07, 7},
    {"(cu_kn/cm3_dan/cm3)", 100.0, -2},
    {"(cu_kn/m3_dan/cm3)", 0.0001, 4},
    {"(cu_mn/cm3_dan/cm3)", 100000.0, 5},  // deliberate: shift against the multiplier
    {"(cu_mn/m3_dan/cm3)", 0.1, 1},
    {"(cu_lbf/in3_dan/cm3)", 0.027144714036825, 2},
    {"(cu_lbf/ft3_dan/cm3)", 1.5708746017895e-05, 5},
    {"(cu_dan/cm3_dan/m3)", 1000000.0, -6},
    {"(cu_dan/cm3_gf/cm3)", 1019.7162129779282, -3},
    {"(cu_dan/cm3_gf/m3)", 1019716212.9779283, -9},
    {"(cu_dan/cm3_tf/cm3)", 0.0010197162129779282, 3},
    {"(cu_dan/cm3_tf/m3)", 1019.7162129779282, -3},
    {"(cu_dan/cm3_tf/m3)", 1019.7162129779282, -3},  // never reached: the same row stands above
    {"(cu_dan/cm3_n/cm3)", 10.0, -1},
    {"(cu_dan/cm3_n/m3)", 10000000.0, -7},
    {"(cu_dan/cm3_kn/cm3)", 0.01, 2},
    {"(cu_dan/cm3_kn/m3)", 10000.0, -4},
    {"(cu_dan/cm3_mn/cm3)", 1e-05, -5},  // deliberate: shift against the multiplier
    {"(cu_dan/cm3_mn/m3)", 10.0, -1},
    {"(cu_dan/cm3_lbf/in3)", 36.83958499777829, -2},
    {"(cu_dan/cm3_kgf/cm3)", 1.0197162129779282, 0},
    {"(cu_kgf/cm3_dan/cm3)", 0.9806649999999999, 0},
    {"(cu_dan/cm3_kgf/m3)", 1019716.2129779282, 6},  // deliberate: shift against the multiplier
    {"(cu_kgf/m3_dan/cm3)", 9.806649999999999e-07, -6},  // deliberate: shift against the multiplier
    {"(cu_dan/cm3_lbf/ft3)", 63658.805028792594, -5},
    // Thermal conductivity
    {"(cu_W/mK_W/cmK)", 0.01, 2},
    {"(cu_W/cmK_W/mK)", 100.0, -2},
}};
// clang-format on

/// The row of each command, in lower case: one at the table's end is found as fast as one at its beginning.
/// Of rows with the same command the first.
const std::unordered_map<std::string, const UnitCommand*>& rows_by_command() {
    static const auto rows_by_command = [] {
        std::unordered_map<std::string, const UnitCommand*> rows;
        for (const UnitCommand& row : table)
            rows.emplace(lower_case(row.command), &row);
        return rows;
    }();
    return rows_by_command;
}

}  // namespace

std::span<const UnitCommand> unit_table() {
    return table;
}

const UnitCommand* find_unit_command(std::string_view directives) {
    // A command holds one "(", at its start, and one ")", at its end: what stands from a "(cu_" to the next
    // ")" is the only command that can start there.
    const std::string lower = lower_case(directives);
    const UnitCommand* first = nullptr;
    for (std::size_t open = lower.find("(cu_"); open != std::string::npos;
         open = lower.find("(cu_", open + 1)) {
        const std::size_t end = lower.find(')', open);
        if (end == std::string::npos) break;
        const auto row = rows_by_command().find(lower.substr(open, end - open + 1));
        if (row != rows_by_command().end() && (first == nullptr || row->second < first)) first = row->second;
    }
    return first;
}

}  // namespace coltre
