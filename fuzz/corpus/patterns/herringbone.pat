; Blocks of 2 by 1 laid in herringbone, their rows running upright.
; Both families lie in one upright tile although their lines run at 45 and 135 degrees.
*HERRINGBONE,Herringbone paving
45, 0,0, -1,1, 3,-1
135, 1.41421356,1.41421356, 1,1, 3,-1
