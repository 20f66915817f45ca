// sorting/m01_messages.hpp — what the M01 routines say: the F records and c messages
// of every (error, message code) pair, one table per routine. The message codes are
// shared by the chapter: a code names one argument rule wherever it is checked.
#pragma once

#include "frame/frame.hpp"

namespace zor::sorting {

// Message codes of the chapter's kernels, and the values each carries.
enum MsgCode : int {
    msg_m2_ge_1 = 1001,        // m2
    msg_m1_ge_1 = 1002,        // m1
    msg_m1_le_m2 = 1003,       // m1, m2
    msg_order = 1004,          // order (one character)
    msg_n2_ge_1 = 1005,        // n2
    msg_n1_ge_1 = 1006,        // n1
    msg_n1_le_n2 = 1007,       // n1, n2
    msg_m2_le_ldm = 1008,      // m2, ldm
    msg_len_le_255 = 1009,     // len(ch(1))
    msg_l2_ge_1 = 1010,        // l2
    msg_l1_ge_1 = 1011,        // l1
    msg_l1_le_l2 = 1012,       // l1, l2
    msg_l2_le_len = 1013,      // l2, len(ch(1))
    msg_irank_perm = 1014,     // position counted from 0, value, position counted from 1
    msg_m2_ge_m1 = 1015,       // m1, m2
    msg_m_ge_1 = 1016,         // m
    msg_n_ge_2 = 1017,         // n
    msg_m1_m2_n = 1018,        // m1, m2, n
    msg_mode = 1019,           // mode
    msg_iperm_perm = 1020,     // position counted from 0, value, position counted from 1
};

// ---------------------------------------------------------------------------------
// F records.

inline constexpr FRecord f_m2_ge_1{1, msg_m2_ge_1, {" ** On entry, m2 = %1.", " ** Constraint: m2 >= 1."}};
inline constexpr FRecord f_m1_ge_1{1, msg_m1_ge_1, {" ** On entry, m1 = %1.", " ** Constraint: m1 >= 1."}};
inline constexpr FRecord f_m1_le_m2{1, msg_m1_le_m2,
                                    {" ** On entry, m1 = %1 and m2 = %2.", " ** Constraint: m1 <= m2."}};
inline constexpr FRecord f_order{2, msg_order, {" ** On entry, order has an illegal value: order = '%1'."}};
inline constexpr FRecord f_n2_ge_1{1, msg_n2_ge_1, {" ** On entry, n2 = %1.", " ** Constraint: n2 >= 1."}};
inline constexpr FRecord f_n1_ge_1{1, msg_n1_ge_1, {" ** On entry, n1 = %1.", " ** Constraint: n1 >= 1."}};
inline constexpr FRecord f_n1_le_n2{1, msg_n1_le_n2,
                                    {" ** On entry, n1 = %1 and n2 = %2.", " ** Constraint: n1 <= n2."}};
inline constexpr FRecord f_m2_le_ldm{1, msg_m2_le_ldm,
                                     {" ** On entry, m2 = %1 and ldm = %2.", " ** Constraint: m2 <= ldm."}};
inline constexpr FRecord f_len_le_255{1, msg_len_le_255,
                                      {" ** On entry, len(ch(1)) = %1.", " ** Constraint: len(ch(1)) <= 255."}};
inline constexpr FRecord f_l2_ge_1{1, msg_l2_ge_1, {" ** On entry, l2 = %1.", " ** Constraint: l2 >= 1."}};
inline constexpr FRecord f_l1_ge_1{1, msg_l1_ge_1, {" ** On entry, l1 = %1.", " ** Constraint: l1 >= 1."}};
inline constexpr FRecord f_l1_le_l2{1, msg_l1_le_l2,
                                    {" ** On entry, l1 = %1 and l2 = %2.", " ** Constraint: l1 <= l2."}};
inline constexpr FRecord f_l2_le_len{1, msg_l2_le_len,
                                     {" ** On entry, l2 = %1 and len(ch(1)) = %2.",
                                      " ** Constraint: l2 <= len(ch(1))."}};
inline constexpr FRecord f_irank_perm{2, msg_irank_perm,
                                      {" ** On entry, irank(%3) = %2.",
                                       " ** Constraint: irank(m1:m2) holds a permutation of m1, ..., m2."}};
inline constexpr FRecord f_iperm_perm{2, msg_iperm_perm,
                                      {" ** On entry, iperm(%3) = %2.",
                                       " ** Constraint: iperm(m1:m2) holds a permutation of m1, ..., m2."}};
inline constexpr FRecord f_m2_ge_m1{1, msg_m2_ge_m1,
                                    {" ** On entry, m1 = %1 and m2 = %2.", " ** Constraint: m2 >= m1."}};
inline constexpr FRecord f_m_ge_1{1, msg_m_ge_1, {" ** On entry, m = %1.", " ** Constraint: m >= 1."}};
inline constexpr FRecord f_n_ge_2{1, msg_n_ge_2, {" ** On entry, n = %1.", " ** Constraint: n >= 2."}};
inline constexpr FRecord f_m1_m2_n{1, msg_m1_m2_n,
                                   {" ** On entry, m1 = %1, m2 = %2 and n = %3.",
                                    " ** Constraint: m1 <= m2 <= n."}};
inline constexpr FRecord f_mode{2, msg_mode,
                                {" ** On entry, mode = %1.", " ** Constraint: mode = 0, 1, 2, 3 or 4."}};

// Per routine, in the order of its checks.
inline constexpr FRecord m01caf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_order};
inline constexpr FRecord m01cbf_records[] = {f_order, f_m2_ge_1, f_m1_ge_1, f_m1_le_m2};
inline constexpr FRecord m01ccf_records[] = {f_len_le_255, f_order,   f_m2_ge_1,  f_m1_ge_1,  f_m1_le_m2,
                                             f_l2_ge_1,    f_l1_ge_1, f_l1_le_l2, f_l2_le_len};
inline constexpr FRecord m01daf_records[] = {f_order, f_m2_ge_1, f_m1_ge_1, f_m1_le_m2};
inline constexpr FRecord m01dbf_records[] = {f_order, f_m2_ge_1, f_m1_ge_1, f_m1_le_m2};
inline constexpr FRecord m01dcf_records[] = {f_len_le_255, f_order,   f_m2_ge_1,  f_m1_ge_1,  f_m1_le_m2,
                                             f_l2_ge_1,    f_l1_ge_1, f_l1_le_l2, f_l2_le_len};
inline constexpr FRecord m01def_records[] = {f_order,   f_m2_ge_1,  f_m1_ge_1,  f_n2_ge_1,
                                             f_n1_ge_1, f_n1_le_n2, f_m2_le_ldm};
inline constexpr FRecord m01dff_records[] = {f_order,   f_m2_ge_1, f_m1_ge_1,  f_m1_le_m2,
                                             f_n2_ge_1, f_n1_ge_1, f_n1_le_n2, f_m2_le_ldm};
inline constexpr FRecord m01djf_records[] = {f_order,   f_m2_ge_1, f_m1_ge_1,  f_m1_le_m2,
                                             f_n2_ge_1, f_n1_ge_1, f_n1_le_n2, f_m2_le_ldm};
inline constexpr FRecord m01dkf_records[] = {f_order,   f_m2_ge_1, f_m1_ge_1,  f_m1_le_m2,
                                             f_n2_ge_1, f_n1_ge_1, f_n1_le_n2, f_m2_le_ldm};
inline constexpr FRecord m01dzf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2};
inline constexpr FRecord m01eaf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_irank_perm};
inline constexpr FRecord m01ebf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_irank_perm};
inline constexpr FRecord m01ecf_records[] = {f_len_le_255, f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_irank_perm};
inline constexpr FRecord m01edf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_irank_perm};
inline constexpr FRecord m01naf_records[] = {f_m1_le_m2, f_m1_ge_1};
inline constexpr FRecord m01nbf_records[] = {f_m1_le_m2, f_m1_ge_1};
inline constexpr FRecord m01ncf_records[] = {f_m2_ge_m1, f_m1_ge_1};
inline constexpr FRecord m01ndf_records[] = {f_m_ge_1, f_n_ge_2, f_m1_m2_n, f_m1_ge_1, f_mode};
inline constexpr FRecord m01zaf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_iperm_perm};
inline constexpr FRecord m01zbf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_iperm_perm};
inline constexpr FRecord m01zcf_records[] = {f_m2_ge_1, f_m1_ge_1, f_m1_le_m2, f_iperm_perm};

// ---------------------------------------------------------------------------------
// c messages: the same rules under the c interface's argument names. Positions in
// arrays are quoted counted from 0, as C indexes them.

inline constexpr CMessage c_m2_ge_1{msg_m2_ge_1, NE_INT, "NE_INT:\n  On entry, m2 = %s.\n  Constraint: m2 >= 1."};
inline constexpr CMessage c_m1_ge_1{msg_m1_ge_1, NE_INT, "NE_INT:\n  On entry, m1 = %s.\n  Constraint: m1 >= 1."};
inline constexpr CMessage c_m1_le_m2{msg_m1_le_m2, NE_INT_2,
                                     "NE_INT_2:\n  On entry, m1 = %s and m2 = %s.\n  Constraint: m1 <= m2."};
inline constexpr CMessage c_order{msg_order, NE_BAD_PARAM,
                                  "NE_BAD_PARAM:\n  On entry, order has an illegal value: order = '%s'."};
inline constexpr CMessage c_n2_ge_1{msg_n2_ge_1, NE_INT, "NE_INT:\n  On entry, n2 = %s.\n  Constraint: n2 >= 1."};
inline constexpr CMessage c_n1_ge_1{msg_n1_ge_1, NE_INT, "NE_INT:\n  On entry, n1 = %s.\n  Constraint: n1 >= 1."};
inline constexpr CMessage c_n1_le_n2{msg_n1_le_n2, NE_INT_2,
                                     "NE_INT_2:\n  On entry, n1 = %s and n2 = %s.\n  Constraint: n1 <= n2."};
inline constexpr CMessage c_m2_le_ldm{msg_m2_le_ldm, NE_INT_2,
                                      "NE_INT_2:\n  On entry, m2 = %s and ldm = %s.\n  Constraint: m2 <= ldm."};
inline constexpr CMessage c_len_le_255{msg_len_le_255, NE_INT,
                                       "NE_INT:\n  On entry, lenc = %s.\n  Constraint: lenc <= 255."};
inline constexpr CMessage c_l2_ge_1{msg_l2_ge_1, NE_INT, "NE_INT:\n  On entry, l2 = %s.\n  Constraint: l2 >= 1."};
inline constexpr CMessage c_l1_ge_1{msg_l1_ge_1, NE_INT, "NE_INT:\n  On entry, l1 = %s.\n  Constraint: l1 >= 1."};
inline constexpr CMessage c_l1_le_l2{msg_l1_le_l2, NE_INT_2,
                                     "NE_INT_2:\n  On entry, l1 = %s and l2 = %s.\n  Constraint: l1 <= l2."};
inline constexpr CMessage c_l2_le_len{msg_l2_le_len, NE_INT_2,
                                      "NE_INT_2:\n  On entry, l2 = %s and lenc = %s.\n  Constraint: l2 <= lenc."};
inline constexpr CMessage c_irank_perm{
    msg_irank_perm, NE_INTARR,
    "NE_INTARR:\n  On entry, irank[%s] = %s.\n  Constraint: irank[m1-1..m2-1] holds a permutation of m1, ..., m2."};
inline constexpr CMessage c_iperm_perm{
    msg_iperm_perm, NE_INTARR,
    "NE_INTARR:\n  On entry, iperm[%s] = %s.\n  Constraint: iperm[m1-1..m2-1] holds a permutation of m1, ..., m2."};
inline constexpr CMessage c_m2_ge_m1{msg_m2_ge_m1, NE_INT_2,
                                     "NE_INT_2:\n  On entry, m1 = %s and m2 = %s.\n  Constraint: m2 >= m1."};
inline constexpr CMessage c_m_ge_1{msg_m_ge_1, NE_INT, "NE_INT:\n  On entry, m = %s.\n  Constraint: m >= 1."};
inline constexpr CMessage c_n_ge_2{msg_n_ge_2, NE_INT, "NE_INT:\n  On entry, n = %s.\n  Constraint: n >= 2."};
inline constexpr CMessage c_m1_m2_n{msg_m1_m2_n, NE_INT_3,
                                    "NE_INT_3:\n  On entry, m1 = %s, m2 = %s and n = %s.\n  Constraint: m1 <= m2 <= n."};
inline constexpr CMessage c_mode{msg_mode, NE_INT,
                                 "NE_INT:\n  On entry, mode = %s.\n  Constraint: mode = 0, 1, 2, 3 or 4."};

inline constexpr CMessage m01cac_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_order};
inline constexpr CMessage m01cbc_messages[] = {c_order, c_m2_ge_1, c_m1_ge_1, c_m1_le_m2};
inline constexpr CMessage m01ccc_messages[] = {c_len_le_255, c_order,   c_m2_ge_1,  c_m1_ge_1,  c_m1_le_m2,
                                               c_l2_ge_1,    c_l1_ge_1, c_l1_le_l2, c_l2_le_len};
inline constexpr CMessage m01dac_messages[] = {c_order, c_m2_ge_1, c_m1_ge_1, c_m1_le_m2};
inline constexpr CMessage m01dbc_messages[] = {c_order, c_m2_ge_1, c_m1_ge_1, c_m1_le_m2};
inline constexpr CMessage m01dcc_messages[] = {c_len_le_255, c_order,   c_m2_ge_1,  c_m1_ge_1,  c_m1_le_m2,
                                               c_l2_ge_1,    c_l1_ge_1, c_l1_le_l2, c_l2_le_len};
inline constexpr CMessage m01dec_messages[] = {c_order,   c_m2_ge_1,  c_m1_ge_1,  c_n2_ge_1,
                                               c_n1_ge_1, c_n1_le_n2, c_m2_le_ldm};
inline constexpr CMessage m01dfc_messages[] = {c_order,   c_m2_ge_1, c_m1_ge_1,  c_m1_le_m2,
                                               c_n2_ge_1, c_n1_ge_1, c_n1_le_n2, c_m2_le_ldm};
inline constexpr CMessage m01djc_messages[] = {c_order,   c_m2_ge_1, c_m1_ge_1,  c_m1_le_m2,
                                               c_n2_ge_1, c_n1_ge_1, c_n1_le_n2, c_m2_le_ldm};
inline constexpr CMessage m01dkc_messages[] = {c_order,   c_m2_ge_1, c_m1_ge_1,  c_m1_le_m2,
                                               c_n2_ge_1, c_n1_ge_1, c_n1_le_n2, c_m2_le_ldm};
inline constexpr CMessage m01dzc_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2};
inline constexpr CMessage m01eac_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_irank_perm};
inline constexpr CMessage m01ebc_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_irank_perm};
inline constexpr CMessage m01ecc_messages[] = {c_len_le_255, c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_irank_perm};
inline constexpr CMessage m01edc_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_irank_perm};
inline constexpr CMessage m01nac_messages[] = {c_m1_le_m2, c_m1_ge_1};
inline constexpr CMessage m01nbc_messages[] = {c_m1_le_m2, c_m1_ge_1};
inline constexpr CMessage m01ncc_messages[] = {c_m2_ge_m1, c_m1_ge_1};
inline constexpr CMessage m01ndc_messages[] = {c_m_ge_1, c_n_ge_2, c_m1_m2_n, c_m1_ge_1, c_mode};
inline constexpr CMessage m01zac_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_iperm_perm};
inline constexpr CMessage m01zbc_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_iperm_perm};
inline constexpr CMessage m01zcc_messages[] = {c_m2_ge_1, c_m1_ge_1, c_m1_le_m2, c_iperm_perm};

}  // namespace zor::sorting
