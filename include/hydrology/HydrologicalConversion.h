#pragma once

// Conversion between a flow over whole days and a volume. 0.0864 hm³ is one m³/s over one day
// (86,400 s).
class HydrologicalConversion {
 public:
  // flow m³/s over days -> hm³.
  static double volume(double flow, unsigned int days) { return flow * (days * 0.0864); }
  // volume hm³ over days -> m³/s.
  static double flow(double volume, unsigned int days) { return volume * (1.0 / (days * 0.0864)); }
};
