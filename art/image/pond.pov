// The bed of the pond, seen straight from above: sand, pebbles and weed, without the water.
// Declare Seed, Wide and High (picture size in pixels). One unit is one pixel at 640 x 480.
// x right, y up in the picture, -z toward the eye. No jitter anywhere: the same pixels every time.
#version 3.7;
global_settings { assumed_gamma 1.0 }

#declare Dice = seed(Seed);
#macro Any(Low, High_) (Low + (High_ - Low) * rand(Dice)) #end
// 0..1, smooth over about Size pixels: where things gather.
#declare Gathering = function { pattern { bozo translate Seed * 10 scale 95 } }

camera {
  orthographic
  location <Wide/2, High/2, -900>
  direction z
  up y*High
  right x*Wide
}
light_source {
  <-900, High + 1000, -1300>, rgb <1.55, 1.48, 1.32>
  area_light x*330, y*330, 5, 5 adaptive 1
}
light_source { <Wide/2, High/2, -2000>, rgb <0.24, 0.27, 0.31> shadowless }

#declare Sand = texture {
  pigment {
    granite scale 60
    color_map {
      [0.0 rgb <0.34, 0.27, 0.17>]
      [0.5 rgb <0.46, 0.38, 0.25>]
      [1.0 rgb <0.58, 0.50, 0.36>]
    }
  }
  normal {
    average
    normal_map {
      [1.0 granite 0.35 scale 9]
      [1.3 wrinkles 0.55 scale 34]
      [1.2 bozo 0.7 turbulence 0.5 scale <70, 24, 30> rotate z*24]
    }
  }
  finish { ambient 0 diffuse 0.85 }
}
plane { -z, 0 texture { Sand } }

#declare Kinds = array[6] {
  <0.30, 0.29, 0.28>, <0.46, 0.40, 0.32>, <0.21, 0.23, 0.25>,
  <0.52, 0.36, 0.24>, <0.62, 0.59, 0.52>, <0.31, 0.33, 0.27>
}
#macro PebbleTexture(Size)
  #local Tone = Kinds[floor(Any(0, 5.99))] * Any(0.75, 1.2);
  texture {
    pigment {
      granite turbulence 0.4 scale Size * Any(0.5, 1.6) translate Any(-99, 99)
      color_map { [0.2 rgb Tone * 0.72] [0.55 rgb Tone] [0.95 rgb Tone * 1.22] }
    }
    normal { bumps 0.25 scale Size * 0.22 }
    finish { ambient 0 diffuse 0.85 specular 0.10 roughness 0.06 }
  }
#end
#macro Pebble(X, Y, Size)
  #local Round = Any(0.62, 0.95);
  superellipsoid {
    <Any(0.75, 1.0), Any(0.75, 1.0)>
    scale Size * <1, Any(0.62, 0.95), Any(0.35, 0.55)>
    rotate <Any(-14, 14), Any(-14, 14), Any(0, 360)>
    PebbleTexture(Size)
    translate <X, Y, -Size * 0.12>
  }
#end

// Gravel lies thickest where pebbles gather, and toward the banks.
#macro Scatter(Count, Smallest, Largest, Threshold)
  #local I = 0;
  #while (I < Count)
    #local X = Any(-20, Wide + 20);
    #local Y = Any(-20, High + 20);
    #local Bank = max(abs(X / Wide - 0.5), abs(Y / High - 0.5)) * 2;
    #local Size = Smallest * pow(Largest / Smallest, pow(rand(Dice), 2.2));
    #if (Gathering(X, Y, 0) * 0.75 + pow(Bank, 3) * 0.42 > Threshold + Any(-0.10, 0.10))
      Pebble(X, Y, Size)
    #end
    #local I = I + 1;
  #end
#end
union { Scatter(5200, 1.6, 6, 0.46) }
union { Scatter(1300, 5, 17, 0.53) }
union { Scatter(330, 13, 36, 0.62) }
union { Scatter(420, 1.5, 5, 0.20) }

// A strand rises from the bed and leans over with the current, thinning toward its tip.
#macro Strand(X, Y, Long, Lean, Thick, Tone)
  #local Steps = 15;
  #local Sway = Any(0, 6.28);
  #local Width = Thick * 0.6;
  #local Old = <X, Y, 0>;
  #local OldWidth = Width;
  #local S = 1;
  #while (S <= Steps)
    #local T = S / Steps;
    #local Turn = radians(Lean) + 0.55 * sin(Sway + T * 4.2);
    #local New = Old + Long / Steps * <cos(Turn) * (0.35 + T), sin(Turn) * (0.35 + T), -1.1 * (1.15 - T)>;
    #local Width = Thick * (0.6 + 1.5 * T * (1 - T)) * (1.02 - 0.8 * T * T * T);
    cone { Old, OldWidth, New, Width pigment { rgb Tone * (0.5 + 0.75 * T) } }
    sphere { New, Width pigment { rgb Tone * (0.5 + 0.75 * T) } }
    #local Old = New;
    #local OldWidth = Width;
    #local S = S + 1;
  #end
#end
#macro Clump(X, Y, Count, Spread, Long, Lean)
  union {
    #local I = 0;
    #while (I < Count)
      #local Tone = <Any(0.10, 0.22), Any(0.27, 0.42), Any(0.06, 0.12)>;
      Strand(X + Any(-Spread, Spread), Y + Any(-Spread, Spread),
             Long * Any(0.5, 1.1), Lean + Any(-42, 42), Any(1.0, 2.1), Tone)
      #local I = I + 1;
    #end
    finish { ambient 0 diffuse 0.9 specular 0.12 roughness 0.05 }
  }
#end
Clump(Wide * 0.03, High * 0.96, 34, 30, 95, -35)
Clump(Wide * 0.97, High * 0.05, 34, 30, 95, 150)
Clump(Wide * 0.93, High * 0.93, 24, 26, 75, -140)
Clump(Wide * 0.05, High * 0.10, 24, 26, 80, 40)
Clump(Wide * 0.52, High * 1.02, 16, 34, 60, -80)
Clump(Wide * 1.01, High * 0.52, 14, 26, 60, 170)
Clump(Wide * 0.00, High * 0.50, 14, 26, 55, 5)
Clump(Wide * 0.62, High * 0.33, 7, 10, 42, 70)
