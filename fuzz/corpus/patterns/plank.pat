; A floor of boards, 6 long and 1 wide, that meet end to end at thirds of their length.
; Joints and grain stack three lines to a tile, the boards' edges one: three groups, so a compound symbol.
*PLANK,Floor boards with grain
0, 0,0, 0,1
90, 0,0, 1,2, 1,-2
0, 0.5,0.3, -2,1, 2.2,-1.1,0.9,-1.8
0, 3.2,0.7, -2,1, 1.2,-4.8
