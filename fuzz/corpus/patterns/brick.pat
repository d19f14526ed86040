; A brick wall in running bond: bricks of 2 by 1, each course shifted by half a brick.
; Level lines without dashes, and upright joints that two lines to a tile repeat.
*BRICK,Brick wall in running bond
0, 0,0, 0,1
90, 0,0, 1,1, 1,-1
