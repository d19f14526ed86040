; Grains of sand: dots and specks that look scattered but repeat in an upright tile of 4 by 3.
; Each family runs along another diagonal of the tile, so that all of them share it and make one path.
*SAND,Scattered dots and specks
36.8698976, 0.4,0.3, 1.8,2.4, 0,-5
36.8698976, 2.1,1.2, 1.8,2.4, 0,-5
-36.8698976, 1.3,2.4, -1.8,2.4, 0,-5
-36.8698976, 3.3,0.7, -1.8,2.4, 0.15,-4.85
20.5560452, 2.8,2.1, 4.79868713,1.40449377, 0,-8.54400375
20.5560452, 1.1,1.7, 4.79868713,1.40449377, 0.15,-8.39400375
