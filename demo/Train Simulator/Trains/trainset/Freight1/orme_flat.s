SIMISA@@@@@@@@@@JINX0s1t______

shape (
	shape_header ( 00000000 00000000 )
	volumes ( 1
		vol_sphere (
			vector ( 0 1.6 0 ) 9.4
		)
	)
	images ( 1
		image ( orme_planks.ace )
	)
	textures ( 1
		texture ( 0 0 -3 ff000000 )
	)
)
