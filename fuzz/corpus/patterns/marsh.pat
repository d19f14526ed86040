; A marsh: broken water lines with tufts of reed, two tufts to a tile of 6 by 3.
; The last family, drifting weed, shifts too little from line to line to repeat within 64 of them: no tile
; repeats it, and it is left out of the symbol.
*MARSH,Marsh with reeds
0, 0,0, 3,1.5, 4,-2
90, 2,0, 1.5,3, 0.9,-2.1
45, 2,0, 2.12132034,2.12132034, 0.7,-7.78528137
45, 5,1.5, 2.12132034,2.12132034, 0.7,-7.78528137
135, 2,0, -2.12132034,2.12132034, 0.7,-7.78528137
135, 5,1.5, -2.12132034,2.12132034, 0.7,-7.78528137
; drifting weed
0, 0,0.75, 0.02,1.5, 0.3,-5.7
