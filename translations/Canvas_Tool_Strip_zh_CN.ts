<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddFeature</name>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>焊盘</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>铜面</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>弧</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>正</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负</translation>
    </message>
    <message>
        <source>Mir</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>No Mir</source>
        <translation>不镜像</translation>
    </message>
    <message>
        <source>Add Feature</source>
        <translation>添加图元</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>极性</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转角度</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Values...</source>
        <translation>属性值...</translation>
    </message>
    <message>
        <source>Fill...</source>
        <translation>填充...</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆</translation>
    </message>
    <message>
        <source>Start, Center, End</source>
        <translation>起点、圆心、终点</translation>
    </message>
    <message>
        <source>Start, End, Edge</source>
        <translation>起点、终点、边缘点</translation>
    </message>
    <message>
        <source>Start, End, Center</source>
        <translation>起点、终点、圆心</translation>
    </message>
    <message>
        <source>Start, Center, Angle</source>
        <translation>起点、圆心、角度</translation>
    </message>
    <message>
        <source>Start, Center, Length</source>
        <translation>起点、圆心、长度</translation>
    </message>
    <message>
        <source>Start, End, Angle</source>
        <translation>起点、终点、角度</translation>
    </message>
    <message>
        <source>Start, End, Radius</source>
        <translation>起点、终点、半径</translation>
    </message>
    <message>
        <source>Center, Radius</source>
        <translation>圆心、半径</translation>
    </message>
    <message>
        <source>Center, Point</source>
        <translation>圆心、圆上点</translation>
    </message>
    <message>
        <source>Point, Center</source>
        <translation>圆上点、圆心</translation>
    </message>
    <message>
        <source>Three Points</source>
        <translation>三点</translation>
    </message>
    <message>
        <source>ClockWise</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>Arc or circle</source>
        <translation>弧或圆</translation>
    </message>
    <message>
        <source>Arc method</source>
        <translation>画弧方式</translation>
    </message>
    <message>
        <source>Circle method</source>
        <translation>画圆方式</translation>
    </message>
    <message>
        <source>UPC39</source>
        <translation>UPC39</translation>
    </message>
    <message>
        <source>UPC39 ascii</source>
        <translation>UPC39 ascii</translation>
    </message>
    <message>
        <source>CODE128B</source>
        <translation>CODE128B</translation>
    </message>
    <message>
        <source>CODE128C</source>
        <translation>CODE128C</translation>
    </message>
    <message>
        <source>ECC-200</source>
        <translation>ECC-200</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>Add String</source>
        <translation>添加字符串</translation>
    </message>
    <message>
        <source>Position of the string</source>
        <translation>字符串位置</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Add Markers</source>
        <translation>添加标记</translation>
    </message>
    <message>
        <source>Height	:</source>
        <translation>高度	:</translation>
    </message>
    <message>
        <source>mil</source>
        <translation>mil</translation>
    </message>
    <message>
        <source>Matrix	:</source>
        <translation>矩阵	:</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>矩阵</translation>
    </message>
    <message>
        <source>5 X 7</source>
        <translation>5 X 7</translation>
    </message>
    <message>
        <source>6 X 7</source>
        <translation>6 X 7</translation>
    </message>
    <message>
        <source>Type		:</source>
        <translation>类型		:</translation>
    </message>
    <message>
        <source>Hole size</source>
        <translation>孔径</translation>
    </message>
    <message>
        <source>Single Line</source>
        <translation>单线</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>折线</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Slot</source>
        <translation>槽</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>直角</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>倒角</translation>
    </message>
    <message>
        <source>Oblong</source>
        <translation>长圆</translation>
    </message>
    <message>
        <source>Plated</source>
        <translation>金属化</translation>
    </message>
    <message>
        <source>Non Plated</source>
        <translation>非金属化</translation>
    </message>
    <message>
        <source>Free direction</source>
        <translation>自由方向</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical, then horizontal</source>
        <translation>先垂直后水平</translation>
    </message>
    <message>
        <source>Eight directions</source>
        <translation>八个方向</translation>
    </message>
    <message>
        <source>Fixed angle</source>
        <translation>固定角度</translation>
    </message>
    <message>
        <source>Kind of line</source>
        <translation>线的种类</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>闭合</translation>
    </message>
    <message>
        <source>Angle (deg)</source>
        <translation>角度 (度)</translation>
    </message>
    <message>
        <source>Corner Type : </source>
        <translation>拐角类型 : </translation>
    </message>
    <message>
        <source>Corner Radius : </source>
        <translation>拐角半径 : </translation>
    </message>
    <message>
        <source>Length : </source>
        <translation>长度 : </translation>
    </message>
    <message>
        <source>Angle (deg) : </source>
        <translation>角度 (度) : </translation>
    </message>
    <message>
        <source>Decode: </source>
        <translation>译码: </translation>
    </message>
    <message>
        <source>Plating</source>
        <translation>金属化</translation>
    </message>
    <message>
        <source>Nx   : </source>
        <translation>X个数: </translation>
    </message>
    <message>
        <source>Dx   : </source>
        <translation>X间距: </translation>
    </message>
    <message>
        <source>Xscl : </source>
        <translation>X比例: </translation>
    </message>
    <message>
        <source>Ny   : </source>
        <translation>Y个数: </translation>
    </message>
    <message>
        <source>Dy   : </source>
        <translation>Y间距: </translation>
    </message>
    <message>
        <source>Yscl : </source>
        <translation>Y比例: </translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>条码</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>Font Size	:</source>
        <translation>字号	:</translation>
    </message>
    <message>
        <source>Zoom Factor	:</source>
        <translation>缩放系数	:</translation>
    </message>
    <message>
        <source>X Size  : </source>
        <translation>X 尺寸  : </translation>
    </message>
    <message>
        <source>Y Size  : </source>
        <translation>Y 尺寸  : </translation>
    </message>
    <message>
        <source>Line Width : </source>
        <translation>线宽 : </translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Surface shape</source>
        <translation>铜面形状</translation>
    </message>
    <message>
        <source>Orbotech Plot Stamp</source>
        <translation>Orbotech 绘图标记</translation>
    </message>
    <message>
        <source>Canned Text</source>
        <translation>点阵文字</translation>
    </message>
    <message>
        <source>Text format</source>
        <translation>文字格式</translation>
    </message>
    <message>
        <source>Barcode type</source>
        <translation>条码类型</translation>
    </message>
    <message>
        <source>Font		:</source>
        <translation>字体		:</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Text		:</source>
        <translation>文字		:</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Select from editor</source>
        <translation>从编辑器中选取</translation>
    </message>
    <message>
        <source>Illegal Input</source>
        <translation>非法输入</translation>
    </message>
    <message>
        <source>Unable to create special symbol!</source>
        <translation>无法创建特殊符号！</translation>
    </message>
    <message>
        <source>Dialog Box</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Illegal symbol name: </source>
        <translation>非法的符号名: </translation>
    </message>
    <message>
        <source>my</source>
        <translation>μm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>"</source>
        <translation>"</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The current text box can only enter a value from 0 to</source>
        <translation>当前文本框可输入的数值范围为 0 到 </translation>
    </message>
    <message>
        <source>The current value out of range:</source>
        <translation>当前数值超出范围:</translation>
    </message>
</context>
<context>
    <name>Canvas_Tool_Strip</name>
    <message>
        <source>Select By Net</source>
        <translation>按网络选择</translation>
    </message>
    <message>
        <source>Select Layer Net</source>
        <translation>选择层网络</translation>
    </message>
    <message>
        <source>Select Board Net</source>
        <translation>选择板网络</translation>
    </message>
    <message>
        <source>Select_Polyline</source>
        <translation>选择折线</translation>
    </message>
    <message>
        <source>Mark Orthogonal</source>
        <translation>正交标记</translation>
    </message>
    <message>
        <source>Mark Point to Point</source>
        <translation>点到点标记</translation>
    </message>
    <message>
        <source>Delete Feature</source>
        <translation>删除图元</translation>
    </message>
    <message>
        <source>Delete to Intersection</source>
        <translation>删除到交点</translation>
    </message>
    <message>
        <source>Select Polyline</source>
        <translation>选择折线</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Area Zoom</source>
        <translation>区域缩放</translation>
    </message>
    <message>
        <source>Open a Popview</source>
        <translation>打开弹出视图</translation>
    </message>
    <message>
        <source>Measure</source>
        <comment>tool_edit</comment>
        <translation>测量</translation>
    </message>
    <message>
        <source>Feature HighLight</source>
        <translation>高亮图元</translation>
    </message>
    <message>
        <source>Add Feature</source>
        <translation>添加图元</translation>
    </message>
    <message>
        <source>Move Feature</source>
        <translation>移动图元</translation>
    </message>
    <message>
        <source>Copy Feature</source>
        <translation>复制图元</translation>
    </message>
    <message>
        <source>Change Line Angle</source>
        <translation>改变线角度</translation>
    </message>
    <message>
        <source>Stretch Line</source>
        <translation>拉伸线</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Invert Feature</source>
        <translation>反转图元极性</translation>
    </message>
    <message>
        <source>Break Line</source>
        <translation>打断线</translation>
    </message>
    <message>
        <source>Rout Dimension Editor</source>
        <translation>锣带尺寸编辑</translation>
    </message>
    <message>
        <source>Contour Editor</source>
        <translation>轮廓编辑</translation>
    </message>
    <message>
        <source>Pull Line</source>
        <translation>拉线</translation>
    </message>
    <message>
        <source>Move Junction</source>
        <translation>移动连接点</translation>
    </message>
    <message>
        <source>Move Triplet(Angle)</source>
        <translation>移动三段线(保持角度)</translation>
    </message>
    <message>
        <source>Reroute Trace(Fix Point)</source>
        <translation>重新布线(固定点)</translation>
    </message>
    <message>
        <source>Feature Selection</source>
        <translation>选择图元</translation>
    </message>
    <message>
        <source>Rectangle Selection</source>
        <translation>矩形框选</translation>
    </message>
    <message>
        <source>Polygon Selection</source>
        <translation>多边形框选</translation>
    </message>
    <message>
        <source>Select By net</source>
        <translation>按网络选择</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>EQ</source>
        <translation>EQ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>m_pDimensions</name>
    <message>
        <source>Dimensions Popup</source>
        <translation>尺寸标注</translation>
    </message>
    <message>
        <source>Add reference point</source>
        <translation>添加参考点</translation>
    </message>
    <message>
        <source>Ref</source>
        <translation>参考</translation>
    </message>
    <message>
        <source>Add Dimension Link</source>
        <translation>添加尺寸链</translation>
    </message>
    <message>
        <source>Dimen</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Edit Dimension Link</source>
        <translation>编辑尺寸链</translation>
    </message>
    <message>
        <source>E Dim</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete Dimension Link</source>
        <translation>删除尺寸链</translation>
    </message>
    <message>
        <source>Del..</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Connect Reference point</source>
        <translation>连接参考点</translation>
    </message>
    <message>
        <source>Con</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Erase All Dimensions</source>
        <translation>清除所有尺寸</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Display filter</source>
        <translation>显示过滤</translation>
    </message>
    <message>
        <source>Hide DLine</source>
        <translation>隐藏尺寸线</translation>
    </message>
    <message>
        <source>H..L</source>
        <translation>藏线</translation>
    </message>
    <message>
        <source>HideDPoint</source>
        <translation>隐藏尺寸点</translation>
    </message>
    <message>
        <source>H.P.</source>
        <translation>藏点</translation>
    </message>
    <message>
        <source>Hide Dimensions Link</source>
        <translation>隐藏尺寸链</translation>
    </message>
    <message>
        <source>HLink</source>
        <translation>藏链</translation>
    </message>
    <message>
        <source>Hide Angle Dimensions</source>
        <translation>隐藏角度尺寸</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Hide distance indications</source>
        <translation>隐藏距离指示</translation>
    </message>
    <message>
        <source>Hid d</source>
        <translation>藏距</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Precision	:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;精度	:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Sym</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>No sym</source>
        <translation>无符号</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>重叠</translation>
    </message>
    <message>
        <source>Opaque</source>
        <translation>不透明</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>精度</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Source Element</source>
        <translation>源元素</translation>
    </message>
    <message>
        <source>Single Source</source>
        <translation>单一源</translation>
    </message>
    <message>
        <source>Sel</source>
        <translation>选</translation>
    </message>
    <message>
        <source>sel</source>
        <translation>选</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>模式:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Ps</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>Pe</source>
        <translation>终点</translation>
    </message>
    <message>
        <source>Dest Element</source>
        <translation>目标元素</translation>
    </message>
    <message>
        <source>Create New Element</source>
        <translation>创建新元素</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
</TS>
