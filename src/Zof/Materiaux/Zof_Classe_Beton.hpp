#pragma once
// What every concrete has: its characteristic strength.

#include "Zof_Classe_Materiau.hpp"

struct zof_beton : zof_materiau {
  double m_fck = socle::non_renseigne;  ///< MPa, cylinder, at 28 days

  virtual void set_fck(double fck) { m_fck = fck; }
  virtual double get_fck() const { return m_fck; }
};
